#include "env/NeighbourFile.h"

#include "env/RuntimeFailure.h"

#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantorium::env {
namespace {

constexpr std::string_view kPrefix = ".vantorium-";

std::filesystem::path NeighbourOf(const std::filesystem::path& target) {
  static std::atomic<unsigned> count = 0;
  return target.parent_path() / (std::string(kPrefix) + std::to_string(::getpid()) + "-" + std::to_string(count++));
}

/// Returns the status of the regular file at `target`, or nullopt if there is none or a symbolic link. Throws for a
/// folder, a device, a pipe or a socket, which are never replaced, and for a file that its owner may not write.
std::optional<struct stat> FileToReplace(const std::filesystem::path& target) {
  struct stat old = {};
  if (::lstat(target.c_str(), &old) != 0 || S_ISLNK(old.st_mode)) return std::nullopt;
  if (S_ISDIR(old.st_mode)) ThrowFileAccess(target, EISDIR);
  if (!S_ISREG(old.st_mode)) ThrowFileAccess(target, EINVAL);
  if ((old.st_mode & S_IWUSR) == 0) ThrowFileAccess(target, EACCES);
  return old;
}

/// Returns why no file can be created at `target`, given the reason of the system. A folder that is missing because the
/// folder above it cannot be written to is a matter of that one.
int ReasonForTarget(const std::filesystem::path& target, int reason) {
  if (reason != ENOENT) return reason;
  std::error_code ignored;
  std::filesystem::path above = std::filesystem::absolute(target, ignored).parent_path();
  while (above.has_relative_path() && !std::filesystem::exists(above, ignored)) above = above.parent_path();
  return ::faccessat(AT_FDCWD, above.c_str(), W_OK, AT_EACCESS) == 0 ? reason : errno;
}

/// Copies owner, group and permissions as far as the system allows: only root can give files to others, and some file
/// systems have no owners.
void TakeOwnership(int file, const struct stat& old) {
  std::ignore = ::fchown(file, static_cast<uid_t>(-1), old.st_gid);
  std::ignore = ::fchown(file, old.st_uid, static_cast<gid_t>(-1));
  std::ignore = ::fchmod(file, old.st_mode & 0777U);
}

/// Returns the process ID in a neighbour's name, or nullopt for any other name.
std::optional<pid_t> MakerOf(std::string_view name) {
  if (!name.starts_with(kPrefix)) return std::nullopt;
  name.remove_prefix(kPrefix.size());
  const char* const end = name.data() + name.size();
  pid_t maker = 0;
  unsigned number = 0;
  const auto dash = std::from_chars(name.data(), end, maker);
  if (dash.ec != std::errc() || maker <= 0 || dash.ptr == end || *dash.ptr != '-') return std::nullopt;
  const auto last = std::from_chars(dash.ptr + 1, end, number);
  if (last.ec != std::errc() || last.ptr != end) return std::nullopt;
  return maker;
}

bool IsGone(pid_t process) {
  return ::kill(process, 0) != 0 && errno == ESRCH;
}

}  // namespace

void ThrowFileAccess(const std::filesystem::path& path, int reason) {
  throw RuntimeFailure(FailureKind::FileAccess, path.string() + ": " + std::strerror(reason));
}

NeighbourFile::NeighbourFile(const std::filesystem::path& target) : target_(target), file_(CreateNeighbour()) {
  if (!file_.IsOpen()) ThrowFileAccess(target, ReasonForTarget(target, errno));
}

/// The name may exist already: a killed process leaves its neighbour behind, and process IDs are reused.
int NeighbourFile::CreateNeighbour() {
  const auto old = FileToReplace(target_);
  replacesFile_ = old.has_value();
  const mode_t mode = replacesFile_ ? 0600 : 0666;  // nobody else may read it until it has the old file's mode
  int descriptor = -1;
  do {
    path_ = NeighbourOf(target_);
    descriptor = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  } while (descriptor < 0 && (errno == EEXIST || errno == EINTR));
  if (descriptor >= 0 && old) TakeOwnership(descriptor, *old);
  return descriptor;
}

NeighbourFile::~NeighbourFile() {
  if (!renamed_) ::unlink(path_.c_str());
}

void NeighbourFile::Write(std::string_view bytes) {
  if (!WriteAll(file_.Get(), bytes)) ThrowFileAccess(target_);
}

void NeighbourFile::Sync() {
  while (::fsync(file_.Get()) != 0) {
    if (errno != EINTR) ThrowFileAccess(target_);
  }
}

void NeighbourFile::TakeTargetName() {
  std::ignore = FileToReplace(target_);
  if (!file_.Close() || ::rename(path_.c_str(), target_.c_str()) != 0) ThrowFileAccess(target_);
  renamed_ = true;
}

bool IsNeighbourName(std::string_view name) {
  return MakerOf(name).has_value();
}

void RemoveAbandonedNeighbours(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const auto maker = MakerOf(entry->path().filename().string());
    std::error_code ignored;
    const bool abandoned = maker && IsGone(*maker) && std::filesystem::is_regular_file(entry->symlink_status(ignored));
    if (abandoned) ::unlink(entry->path().c_str());
  }
}

}  // namespace vantorium::env
