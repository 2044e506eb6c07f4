#include "env/FileCopy.h"
#include "env/FileDescriptor.h"
#include "env/FileInput.h"
#include "env/NeighbourFile.h"
#include "image/jpeg/ScanData.h"
#include "publish/LocalFile.h"
#include "tests/fakes/TemporaryFolder.h"

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/types.h>

// The linker redirects the program's system calls to these functions (see CMakeLists.txt), so that a test can let them
// fail as if interrupted by a signal, or let a write accept no bytes.

namespace {

bool interrupting = false;
bool acceptingNothing = false;
int interruptions = 0;

/// Lets every second call fail with EINTR while `interrupting` is set.
bool IsInterrupted() {
  static bool last = false;
  last = interrupting && !last;
  if (!last) return false;
  ++interruptions;
  errno = EINTR;
  return true;
}

}  // namespace

extern "C" {
ssize_t __real_read(int, void*, std::size_t);
ssize_t __real_pread(int, void*, std::size_t, off_t);
ssize_t __real_write(int, const void*, std::size_t);
ssize_t __real_sendfile(int, int, off_t*, std::size_t);
int __real_fsync(int);
int __real_close(int);

ssize_t __wrap_read(int file, void* bytes, std::size_t size) {
  return IsInterrupted() ? -1 : __real_read(file, bytes, size);
}
ssize_t __wrap_pread(int file, void* bytes, std::size_t size, off_t place) {
  return IsInterrupted() ? -1 : __real_pread(file, bytes, size, place);
}
ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
  if (acceptingNothing) return 0;
  return IsInterrupted() ? -1 : __real_write(file, bytes, size < 1000 ? size : 1000);
}
ssize_t __wrap_sendfile(int target, int source, off_t* place, std::size_t size) {
  return IsInterrupted() ? -1 : __real_sendfile(target, source, place, size < 1000 ? size : 1000);
}
int __wrap_fsync(int file) {
  return IsInterrupted() ? -1 : __real_fsync(file);
}
int __wrap_close(int file) {
  const int result = __real_close(file);
  return IsInterrupted() ? -1 : result;
}
}

namespace vantorium::env {
namespace {

class InterruptedCalls : public testing::Test {
 protected:
  InterruptedCalls() {
    interruptions = 0;
    interrupting = true;
  }
  ~InterruptedCalls() override {
    interrupting = false;
    acceptingNothing = false;
  }
  [[nodiscard]] std::string Read(const char* name) const {
    interrupting = false;
    return folder.Read(name);
  }

  const fakes::TemporaryFolder folder;
  const std::string bytes = std::string(100'001, 'x');
  const std::filesystem::path file = folder.Write("source", bytes);
};

TEST_F(InterruptedCalls, AreRepeatedUntilAFileIsWritten) {
  NeighbourFile target(folder.Path() / "target");
  target.Write(bytes);
  target.Sync();
  target.TakeTargetName();
  EXPECT_GT(interruptions, 100);
  EXPECT_EQ(Read("target"), bytes);
}

TEST_F(InterruptedCalls, AreRepeatedUntilAFileIsRead) {
  EXPECT_EQ(ReadFileWhole(file, bytes.size()), bytes);
  EXPECT_GT(interruptions, 0);
}

TEST_F(InterruptedCalls, AreRepeatedUntilAFileIsCopied) {
  CopyFileWhole(file, folder.Path() / "copy", false);
  EXPECT_GT(interruptions, 100);
  EXPECT_EQ(Read("copy"), bytes);
}

TEST_F(InterruptedCalls, AreRepeatedWhileAFileIsReadForItsUpload) {
  publish::LocalFile local(file);
  std::string read(bytes.size(), ' ');
  EXPECT_TRUE(local.Read(read));
  EXPECT_GT(interruptions, 0);
  EXPECT_EQ(read, bytes);
}

TEST_F(InterruptedCalls, AreRepeatedWhileAPhotographIsRead) {
  const FileDescriptor photograph(::open(file.c_str(), O_RDONLY));
  image::jpeg::ScanData data(photograph.Get(), 0);
  data.BeginSegment();
  std::size_t read = 0;
  while (!data.IsWhole()) {
    read += static_cast<std::size_t>(data.End() - data.Begin());
    std::ignore = data.More(data.End());
  }
  EXPECT_EQ(read + static_cast<std::size_t>(data.End() - data.Begin()), bytes.size());
  EXPECT_GT(interruptions, 0);
}

TEST_F(InterruptedCalls, AreNotRepeatedForeverWhenAWriteAcceptsNothing) {
  const FileDescriptor target(::open((folder.Path() / "target").c_str(), O_WRONLY | O_CREAT, 0600));
  acceptingNothing = true;
  EXPECT_FALSE(WriteAll(target.Get(), "x"));
  EXPECT_EQ(errno, EIO);
  EXPECT_TRUE(WriteAll(target.Get(), ""));
}

}  // namespace
}  // namespace vantorium::env
