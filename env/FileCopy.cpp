#include "env/FileCopy.h"

#include "env/FileDescriptor.h"
#include "env/NeighbourFile.h"

#include <array>
#include <cerrno>
#include <tuple>

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>

namespace vantorium::env {
namespace {

bool IsSameFile(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

void CopyBytes(int source, int target, const std::filesystem::path& name) {
  constexpr std::size_t kChunk = std::size_t{64} << 20;
  for (;;) {
    const auto sent = ::sendfile(target, source, nullptr, kChunk);
    if (sent == 0) return;
    if (sent < 0 && errno != EINTR) ThrowFileAccess(name);
  }
}

/// Failures to copy permissions and times are ignored: a file system without them still gets the copy. The owner can
/// always write the copy, so that the next run can replace it.
void CopyAttributes(const struct stat& source, const NeighbourFile& target) {
  const std::array<timespec, 2> times = {source.st_atim, source.st_mtim};
  if (!target.ReplacesFile()) std::ignore = ::fchmod(target.Descriptor(), (source.st_mode & 0777) | S_IWUSR);
  std::ignore = ::futimens(target.Descriptor(), times.data());
}

}  // namespace

void CopyFileWhole(const std::filesystem::path& source, const std::filesystem::path& target, bool overwrite) {
  const FileDescriptor from(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status = {};
  if (!from.IsOpen() || ::fstat(from.Get(), &status) != 0) ThrowFileAccess(source);
  if (!S_ISREG(status.st_mode)) ThrowFileAccess(source, EINVAL);

  struct stat old = {};
  if (!overwrite && ::lstat(target.c_str(), &old) == 0) ThrowFileAccess(target, EEXIST);
  if (::stat(target.c_str(), &old) == 0 && IsSameFile(status, old)) return;
  NeighbourFile to(target);
  CopyBytes(from.Get(), to.Descriptor(), target);
  CopyAttributes(status, to);
  to.TakeTargetName();
}

}  // namespace vantorium::env
