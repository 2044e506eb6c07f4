#include "env/FileDescriptor.h"
#include "tests/fakes/TemporaryFolder.h"

#include <array>
#include <cerrno>
#include <thread>

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

TEST(FileDescriptor, AStreamThatDoesNotBlockTakesAllBytesAsTheyAreRead) {
  std::array<int, 2> ends = {};
  ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
  const FileDescriptor reading(ends[0]);
  FileDescriptor writing(ends[1]);
  ASSERT_EQ(::fcntl(writing.Get(), F_SETFL, O_NONBLOCK), 0);
  const std::string bytes(1'000'000, 'x');
  EXPECT_FALSE(WriteAll(writing.Get(), bytes)) << "the pipe takes them all";
  std::size_t read = 0;
  std::thread reader([&] {
    std::array<char, 4096> block = {};
    for (ssize_t count = 1; count > 0; read += static_cast<std::size_t>(count)) {
      count = ::read(reading.Get(), block.data(), block.size());
    }
  });
  EXPECT_TRUE(WriteAllToStream(writing.Get(), bytes));
  EXPECT_TRUE(writing.Close());
  reader.join();
  EXPECT_GT(read, bytes.size());
  const FileDescriptor full(::open("/dev/full", O_WRONLY));
  EXPECT_FALSE(WriteAllToStream(full.Get(), "x"));
}

}  // namespace
}  // namespace vantorium::env
