#include "env/FileDescriptor.h"
#include "tests/fakes/TemporaryFolder.h"

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vantorium::env {
namespace {

TEST(FileDescriptor, AllBytesAreWritten) {
  const fakes::TemporaryFolder folder;
  FileDescriptor file(::open((folder.Path() / "a").c_str(), O_WRONLY | O_CREAT, 0600));
  const std::string bytes(300'000, 'x');
  EXPECT_TRUE(WriteAll(file.Get(), bytes));
  EXPECT_TRUE(WriteAll(file.Get(), ""));
  EXPECT_TRUE(file.Close());
  EXPECT_TRUE(folder.Read("a") == bytes);
}

TEST(FileDescriptor, AFailedWriteReportsTheSystemsReason) {
  const FileDescriptor full(::open("/dev/full", O_WRONLY));
  EXPECT_FALSE(WriteAll(full.Get(), "x"));
  EXPECT_EQ(errno, ENOSPC);
  EXPECT_FALSE(WriteAll(-1, "x"));
  EXPECT_EQ(errno, EBADF);
  const FileDescriptor closed(::open("/dev/null", O_RDONLY));
  EXPECT_FALSE(WriteAll(closed.Get(), "x"));
}

}  // namespace
}  // namespace vantorium::env
