#include "env/NeighbourFile.h"

#include "env/RuntimeFailure.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium {
namespace {

std::filesystem::path NeighbourOf(const std::filesystem::path& target) {
  static std::atomic<unsigned> count = 0;
  return target.parent_path() / (".vantorium-" + std::to_string(::getpid()) + "-" + std::to_string(count++));
}

/// The permissions of a regular file of that name; nothing when there is none.
std::optional<mode_t> PermissionsOf(const std::filesystem::path& target) {
  struct stat old = {};
  if (::lstat(target.c_str(), &old) != 0 || !S_ISREG(old.st_mode)) return std::nullopt;
  return old.st_mode & 0777U;
}

void RefuseReadOnly(const std::filesystem::path& target) {
  if ((PermissionsOf(target).value_or(S_IWUSR) & S_IWUSR) == 0) ThrowFileAccess(target, EACCES);
}

}  // namespace

void ThrowFileAccess(const std::filesystem::path& path, int reason) {
  throw RuntimeFailure(FailureKind::FileAccess, path.string() + ": " + std::strerror(reason));
}

NeighbourFile::NeighbourFile(const std::filesystem::path& target) : target_(target), file_(CreateNeighbour()) {
  if (!file_.IsOpen()) ThrowFileAccess(target);
}

/// A name may be taken: a process that was killed left its neighbour behind, and numbers of processes come again.
int NeighbourFile::CreateNeighbour() {
  int descriptor = -1;
  do {
    path_ = NeighbourOf(target_);
    descriptor = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  } while (descriptor < 0 && errno == EEXIST);
  return descriptor;
}

NeighbourFile::~NeighbourFile() {
  if (!renamed_) ::unlink(path_.c_str());
}

void NeighbourFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = ::write(file_.Get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) ThrowFileAccess(target_);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void NeighbourFile::TakeTargetPermissions() {
  // A file system without permissions refuses, and has nothing to keep.
  if (const auto old = PermissionsOf(target_)) std::ignore = ::fchmod(file_.Get(), *old);
}

void NeighbourFile::Sync() {
  if (::fsync(file_.Get()) != 0) ThrowFileAccess(target_);
}

void NeighbourFile::TakeTargetName() {
  RefuseReadOnly(target_);
  if (!file_.Close() || ::rename(path_.c_str(), target_.c_str()) != 0) ThrowFileAccess(target_);
  renamed_ = true;
}

}  // namespace vantorium
