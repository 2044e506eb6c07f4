#include "publish/LocalFile.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vantorium::publish {
namespace {

using fakes::FailureOf;

std::optional<env::FailureKind> LengthFailure(const std::optional<std::filesystem::path>& file) {
  return FailureOf([&] { std::ignore = LengthOfFile(file); });
}

TEST(LocalFile, OnlyRegularFilesHaveALength) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(LengthOfFile(folder.Write("five", "12345")), 5);
  EXPECT_EQ(LengthOfFile(folder.Write("none", "")), 0);
  EXPECT_EQ(LengthFailure(folder.Path()), env::FailureKind::FileNotFound);
  EXPECT_EQ(LengthFailure(folder.Path() / "missing"), env::FailureKind::FileNotFound);
  EXPECT_EQ(LengthFailure(folder.Path() / "five" / "below"), env::FailureKind::FileNotFound);
  EXPECT_EQ(LengthFailure(std::nullopt), env::FailureKind::FileNotFound);
  EXPECT_EQ(LengthFailure("/dev/zero"), env::FailureKind::FileAccess);
}

TEST(LocalFile, RefusesALengthThatNeedsMoreThan31Bits) {
  const fakes::TemporaryFolder folder;
  const auto file = folder.Write("large", "");
  std::filesystem::resize_file(file, 0x7FFFFFFF);  // sparse
  EXPECT_EQ(LengthOfFile(file), 0x7FFFFFFF);
  std::filesystem::resize_file(file, 0x80000000);
  EXPECT_EQ(LengthFailure(file), env::FailureKind::Overflow);
}

TEST(LocalFile, ReadsWholeBlocksOrNone) {
  const fakes::TemporaryFolder folder;
  LocalFile file(folder.Write("five", "12345"));
  std::string block(3, ' ');
  EXPECT_TRUE(file.Read(block));
  EXPECT_EQ(block, "123");
  EXPECT_FALSE(file.Read(block));
}

TEST(LocalFile, ReadsLargeFilesToTheLastByte) {
  const fakes::TemporaryFolder folder;
  std::string bytes(200001, ' ');
  for (std::size_t at = 0; at < bytes.size(); ++at) bytes[at] = static_cast<char>(at * 7 % 251);
  LocalFile file(folder.Write("large", bytes));
  std::string read;
  for (std::size_t size = 5000; read.size() < bytes.size(); size += 1000) {
    std::string block(std::min(size, bytes.size() - read.size()), ' ');
    ASSERT_TRUE(file.Read(block)) << read.size();
    read += block;
  }
  EXPECT_TRUE(read == bytes);
}

TEST(LocalFile, APipeDoesNotBlock) {
  const fakes::TemporaryFolder folder;
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(LengthFailure(pipe), env::FailureKind::FileAccess);
  LocalFile file(pipe);
  std::string block(1, ' ');
  EXPECT_FALSE(file.Read(block));
}

TEST(LocalFile, AMissingFileCannotBeOpened) {
  EXPECT_EQ(FailureOf([] { LocalFile("/nowhere/at/all"); }), env::FailureKind::FileNotFound);
}

}  // namespace
}  // namespace vantorium::publish
