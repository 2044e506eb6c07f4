#include "env/FileInput.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/TemporaryFolder.h"

#include <sys/stat.h>

namespace vantorium::env {
namespace {

using fakes::FailureOf;

TEST(FileInput, BytesAreReadUnchanged) {
  const fakes::TemporaryFolder folder;
  std::string bytes(50'000, 'x');
  bytes.append("a\0b\r\n\xFF", 6);
  EXPECT_EQ(ReadFileWhole(folder.Write("a", bytes), bytes.size()), bytes);
  EXPECT_EQ(ReadFileWhole(folder.Write("empty", ""), 0), "");
}

TEST(FileInput, AMissingFileIsNotFound) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(FailureOf([&] { std::ignore = ReadFileWhole(folder.Path() / "none", 9); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { std::ignore = ReadFileWhole("", 9); }), FailureKind::FileNotFound);
}

TEST(FileInput, OnlyReadableRegularFilesAreRead) {
  const fakes::TemporaryFolder folder;
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const auto below = folder.Write("file", "x") / "below";
  for (const auto& path : {folder.Path(), pipe, below, std::filesystem::path("/dev/zero")}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ReadFileWhole(path, 9); }), FailureKind::FileAccess) << path;
  }
}

TEST(FileInput, AFileLargerThanTheLimitIsAFailure) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(ReadFileWhole(folder.Write("a", "1234"), 4), "1234");
  EXPECT_EQ(FailureOf([&] { std::ignore = ReadFileWhole(folder.Write("a", "12345"), 4); }), FailureKind::FileAccess);
}

}  // namespace
}  // namespace vantorium::env
