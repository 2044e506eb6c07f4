#include "ui/model/files/Folders.h"

#include "core/CaseFolding.h"

#include <algorithm>
#include <map>

namespace vantorium::ui {

std::string FolderSortKey(const std::string& name) {
  return core::FoldCase(name) + '\0' + name;
}

std::vector<SubFolder> LocalFolders::In(const std::filesystem::path& folder) const {
  std::map<std::string, SubFolder> sorted;
  std::error_code end;
  std::error_code ignored;
  for (std::filesystem::directory_iterator entry(folder, end), last; !end && entry != last; entry.increment(end)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with('.') || !entry->is_directory(ignored)) continue;
    sorted.emplace(FolderSortKey(name), SubFolder{name, entry->is_symlink(ignored)});
  }
  std::vector<SubFolder> folders;
  folders.reserve(sorted.size());
  for (auto& [key, found] : sorted) folders.push_back(std::move(found));
  return folders;
}

bool LocalFolders::IsLink(const std::filesystem::path& folder) const {
  std::error_code ignored;
  return std::filesystem::is_symlink(folder, ignored);
}

}  // namespace vantorium::ui
