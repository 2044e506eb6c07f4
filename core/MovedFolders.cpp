#include "core/MovedFolders.h"

#include "env/PathText.h"
#include "env/Text.h"

#include <algorithm>

namespace vantorium::core {
namespace {

/// Returns the length of the folder in a path, with its separator; a drive alone is a folder too. `path` has
/// backslashes.
std::size_t FolderLength(std::string_view path) {
  const std::size_t drive = env::HasDrive(path) ? 2 : 0;
  return std::max(drive, path.rfind('\\') + 1);  // npos + 1 is 0
}

/// Returns the length of the root, "C:\" or "\\server\share\".
std::size_t RootLength(std::string_view path) {
  std::size_t end = path.find('\\', 2);
  if (!env::HasDrive(path) && end != std::string_view::npos) end = path.find('\\', end + 1);
  return end == std::string_view::npos ? FolderLength(path) : end + 1;
}

/// Returns the folder that makes a path a member of its group: the first one below the root, or the root.
std::string_view TopFolder(std::string_view path) {
  const std::size_t root = RootLength(path);
  const std::size_t end = path.find('\\', root);
  return path.substr(0, end == std::string_view::npos ? root : end + 1);
}

/// Shortens `folder` to the deepest one that also has `path`.
void Widen(std::string& folder, std::string_view path) {
  while (!env::StartsWithIgnoringCase(path, folder)) {
    folder.pop_back();
    folder.resize(folder.rfind('\\') + 1);  // npos + 1 is 0
  }
}

}  // namespace

std::vector<SourceFolder> FoldersOf(const std::vector<std::string>& sources) {
  std::vector<SourceFolder> folders;
  std::vector<std::string> tops;
  for (const std::string& source : sources) {
    const std::string path = env::WithBackslashes(source);
    const std::string_view top = TopFolder(path);
    const auto known =
        std::ranges::find_if(tops, [&](const auto& other) { return env::EqualsIgnoringCase(other, top); });
    const auto group = static_cast<std::size_t>(known - tops.begin());
    if (known == tops.end()) {
      tops.emplace_back(top);
      folders.push_back({path.substr(0, FolderLength(path)), {}});
    }
    Widen(folders[group].folder, path);
    folders[group].sources.push_back(source);
  }
  return folders;
}

std::string Moved(const std::string& source, std::span<const MovedFolder> folders) {
  const std::string path = env::WithBackslashes(source);
  const MovedFolder* deepest = nullptr;
  for (const MovedFolder& folder : folders) {
    const bool isDeeper = deepest == nullptr || folder.from.size() > deepest->from.size();
    if (isDeeper && env::StartsWithIgnoringCase(path, env::WithBackslashes(folder.from))) deepest = &folder;
  }
  return deepest == nullptr ? source : env::WithSlashes(deepest->to + path.substr(deepest->from.size()));
}

}  // namespace vantorium::core
