#include "env/TempFolderLock.h"

#include "env/OpenFolder.h"

#include <cerrno>
#include <optional>
#include <tuple>

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::env {
namespace {

std::optional<struct stat> StatusIn(int parent, const std::string& name) {
  struct stat status = {};
  if (::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return std::nullopt;
  return status;
}

std::string RefusalOf(const struct stat& status, const fs::path& path) {
  const std::string named = "\"" + path.string() + "\"";
  if (S_ISLNK(status.st_mode)) return "The temporary folder is not used, as " + named + " is a symbolic link.";
  if (S_ISDIR(status.st_mode) && status.st_uid != ::geteuid()) {
    return "The temporary folder is not used, as " + named + " belongs to another user.";
  }
  return {};
}

void KeepOthersFromWriting(int folder) {
  constexpr mode_t kOthersWrite = S_IWGRP | S_IWOTH;
  struct stat status = {};
  if (::fstat(folder, &status) != 0 || (status.st_mode & kOthersWrite) == 0) return;
  // A file system without permissions refuses this, and has none to remove.
  std::ignore = ::fchmod(folder, status.st_mode & 07777U & ~kOthersWrite);
}

/// Returns the first refusal for the contents, at any depth, of the folder `name` in the open folder `parent`.
std::string RefusalWithin(int parent, const std::string& name, const fs::path& path) {
  OpenFolder folder(::openat(parent, name.c_str(), kFolderFlags | O_NOFOLLOW));
  if (!folder.IsOpen()) return {};
  KeepOthersFromWriting(folder.Descriptor());
  while (const auto entry = folder.Next()) {
    const auto status = StatusIn(folder.Descriptor(), *entry);
    if (!status) continue;
    if (std::string refusal = RefusalOf(*status, path / *entry); !refusal.empty()) return refusal;
    if (!S_ISDIR(status->st_mode)) continue;
    if (std::string refusal = RefusalWithin(folder.Descriptor(), *entry, path / *entry); !refusal.empty()) {
      return refusal;
    }
  }
  return {};
}

}  // namespace

TempFolderLock::TempFolderLock(const fs::path& folder)
    : folder_(::open(folder.c_str(), kFolderFlags | O_NOFOLLOW)),
      takenElsewhere_(folder_.IsOpen() && ::flock(folder_.Get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {}

std::string RefusalOfTempFolder(const fs::path& folder) {
  const auto status = StatusIn(AT_FDCWD, folder.string());
  if (!status) return {};
  if (std::string refusal = RefusalOf(*status, folder); !refusal.empty()) return refusal;
  return RefusalWithin(AT_FDCWD, folder.string(), folder);
}

}  // namespace vantorium::env
