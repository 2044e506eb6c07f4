#include "env/BundledFiles.h"

#include <map>
#include <string>

namespace fs = std::filesystem;

namespace vantorium::env {

std::optional<fs::path> BundledFiles::Find(std::string_view name) const {
  for (const fs::path& folder : folders_) {
    std::error_code ignored;
    if (const fs::path file = folder / name; fs::is_regular_file(file, ignored)) return file;
  }
  return std::nullopt;
}

std::vector<fs::path> BundledFiles::FindAll(std::string_view folder, std::string_view extension) const {
  std::map<std::string, fs::path> files;
  for (const fs::path& place : folders_) {
    std::error_code missing;
    for (fs::directory_iterator entry(place / folder, missing); !missing && entry != fs::directory_iterator();
         entry.increment(missing)) {
      std::error_code ignored;
      if (entry->path().extension() != extension || !entry->is_regular_file(ignored)) continue;
      files.try_emplace(entry->path().filename().string(), entry->path());
    }
  }
  std::vector<fs::path> found;
  found.reserve(files.size());
  for (auto& [name, file] : files) found.push_back(std::move(file));
  return found;
}

std::vector<fs::path> BundledFolders(const fs::path& programFolder, const ProcessEnvironment& around) {
  std::vector<fs::path> folders = {programFolder};
  if (around.executable.is_absolute()) {
    folders.push_back((around.executable.parent_path() / ".." / "share" / "vantorium").lexically_normal());
  }
  return folders;
}

}  // namespace vantorium::env
