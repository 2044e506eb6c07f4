#include "env/BundledFiles.h"

namespace fs = std::filesystem;

namespace vantorium {

std::optional<fs::path> BundledFiles::Find(std::string_view name) const {
  for (const fs::path& folder : folders_) {
    std::error_code ignored;
    if (const fs::path file = folder / name; fs::is_regular_file(file, ignored)) return file;
  }
  return std::nullopt;
}

std::vector<fs::path> BundledFolders(const fs::path& programFolder, const Surroundings& around) {
  std::vector<fs::path> folders = {programFolder};
  if (around.executable.is_absolute()) {
    folders.push_back((around.executable.parent_path() / ".." / "share" / "vantorium").lexically_normal());
  }
  return folders;
}

}  // namespace vantorium
