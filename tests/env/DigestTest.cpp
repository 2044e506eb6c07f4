#include "env/Digest.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::env {
namespace {

TEST(Digest, IsTheFirstHalfOfTheStandardsExampleDigests) {
  EXPECT_EQ(DigestOf(""), "e3b0c44298fc1c149afbf4c8996fb924");
  EXPECT_EQ(DigestOf("abc"), "ba7816bf8f01cfea414140de5dae2223");
  EXPECT_EQ(DigestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"), "248d6a61d20638b8e5c026930c3e6039");
}

TEST(Digest, PiecesGiveTheDigestOfTheWhole) {
  const std::string bytes(200'000, 'x');
  Digest digest;
  for (std::size_t at = 0; at < bytes.size(); at += 777) digest.Add(std::string_view(bytes).substr(at, 777));
  EXPECT_EQ(digest.Text(), DigestOf(bytes));
}

TEST(Digest, OfAFileIsTheDigestOfItsBytes) {
  const fakes::TemporaryFolder folder;
  for (const std::size_t size : {0U, 1U, 65535U, 65536U, 65537U, 200'000U}) {
    const std::string bytes(size, 'x');
    EXPECT_EQ(DigestOfFile(folder.Write("file", bytes)), DigestOf(bytes)) << size;
  }
}

TEST(Digest, OnlyRegularFilesHaveOne) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(DigestOfFile(folder.Path() / "missing"), std::nullopt);
  EXPECT_EQ(DigestOfFile(folder.Path()), std::nullopt);
  EXPECT_EQ(DigestOfFile("/dev/null"), std::nullopt);
}

}  // namespace
}  // namespace vantorium::env
