#include "env/TempFolder.h"

#include "env/FileDescriptor.h"
#include "env/OpenFolder.h"
#include "env/PathText.h"
#include "env/TempFolderLock.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace vantorium::env {
namespace {

const std::string kTempFolder = TempFolderIn("") + '\\';
constexpr int kFilesToTurn = 200;

enum class EntryKind { Folder, Link, Other };

EntryKind KindOf(int parent, const std::string& name) {
  struct stat status = {};
  if (::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return EntryKind::Other;
  return S_ISDIR(status.st_mode) ? EntryKind::Folder : S_ISLNK(status.st_mode) ? EntryKind::Link : EntryKind::Other;
}

bool DeleteTreeIn(int parent, const std::string& name, EventLoop& loop);

/// Deletes the contents of an open folder. Returns false if a folder within could not be deleted. Stops at a file that
/// cannot be deleted; removing the folder itself then fails.
bool DeleteEntries(OpenFolder& folder, EventLoop& loop) {
  int countdown = kFilesToTurn;
  while (const auto name = folder.Next()) {
    if (KindOf(folder.Descriptor(), *name) == EntryKind::Folder) {
      loop.Turn();
      if (!DeleteTreeIn(folder.Descriptor(), *name, loop)) return false;
      continue;
    }
    if (::unlinkat(folder.Descriptor(), name->c_str(), 0) != 0) return true;
    if (--countdown < 0) {
      countdown = kFilesToTurn;
      loop.Turn();
    }
  }
  return true;
}

/// Deletes the folder `name` in the open folder `parent`. Every access goes through open folders, so nothing that is
/// moved or linked meanwhile can lead out of the tree.
bool DeleteTreeIn(int parent, const std::string& name, EventLoop& loop) {
  {
    OpenFolder folder(::openat(parent, name.c_str(), kFolderFlags | O_NOFOLLOW));
    if (folder.IsOpen() && !DeleteEntries(folder, loop)) return false;
  }
  return ::unlinkat(parent, name.c_str(), AT_REMOVEDIR) == 0;
}

std::vector<std::string> NamesIn(std::string_view path) {
  std::vector<std::string> names;
  while (!path.empty()) {
    const auto size = std::min(path.find('\\'), path.size());
    const std::string_view name = path.substr(0, size);
    if (!name.empty() && name != ".") names.emplace_back(name);
    path.remove_prefix(std::min(size + 1, path.size()));
  }
  return names;
}

/// Walks down the folders of `names` without following a link and deletes the last of them, which may be a link itself.
bool DeleteBelow(int parent, std::span<const std::string> names, EventLoop& loop) {
  const std::string& name = names.front();
  if (names.size() > 1) {
    const FileDescriptor next(::openat(parent, name.c_str(), kFolderFlags | O_NOFOLLOW));
    return next.IsOpen() && DeleteBelow(next.Get(), names.subspan(1), loop);
  }
  if (KindOf(parent, name) == EntryKind::Link) return ::unlinkat(parent, name.c_str(), 0) == 0;
  return DeleteTreeIn(parent, name, loop);
}

}  // namespace

bool DeleteFolderTree(std::string_view folder, const PathMap& paths, EventLoop& loop) {
  if (folder.ends_with('\\')) folder.remove_suffix(1);
  const std::string guarded = std::string(folder) + '\\';
  if (guarded.find(kTempFolder) == std::string::npos || !paths.ToNative(guarded)) return false;

  const std::string path = WithBackslashes(guarded);
  const auto top = path.find(kTempFolder) + 1;
  const auto names = NamesIn(std::string_view(path).substr(top));
  if (std::find(names.begin(), names.end(), "..") != names.end()) return false;
  const auto above = paths.ToNative(path.substr(0, top));
  const FileDescriptor parent(above ? ::open(above->c_str(), kFolderFlags) : -1);
  return parent.IsOpen() && DeleteBelow(parent.Get(), names, loop);
}

std::string TempFolderIn(std::string_view location) {
  return std::string(location) + '\\' + std::string(kTempFolderName);
}

bool ClearTempFolder(std::string_view tempFolderLocation, const mFileFunctions& files, EventLoop& loop) {
  if (tempFolderLocation.empty()) return false;
  const std::string folder = WithTrailingBackslash(tempFolderLocation) + std::string(kTempFolderName);
  const TempFolderLock lock(files.Paths().ToNative(folder).value_or(""));
  if (lock.IsTakenElsewhere()) return false;
  const bool deleted = DeleteFolderTree(folder, files.Paths(), loop);
  std::ignore = files.MakePath(folder);
  return deleted;
}

}  // namespace vantorium::env
