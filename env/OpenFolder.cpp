#include "env/OpenFolder.h"

#include <unistd.h>

namespace vantorium::env {

OpenFolder::OpenFolder(int folder) : listing_(folder >= 0 ? ::fdopendir(folder) : nullptr) {
  if (listing_ == nullptr && folder >= 0) ::close(folder);
}

OpenFolder::~OpenFolder() {
  if (listing_ != nullptr) ::closedir(listing_);
}

std::optional<std::string> OpenFolder::Next() {
  while (const dirent* entry = ::readdir(listing_)) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") return name;
  }
  return std::nullopt;
}

bool IsFolder(const std::optional<std::filesystem::path>& path) {
  std::error_code ignored;
  return path && std::filesystem::is_directory(*path, ignored);
}

bool CanListFolder(const std::optional<std::filesystem::path>& folder) {
  std::error_code error;
  if (folder) const std::filesystem::directory_iterator entries(*folder, error);
  return folder && !error;
}

}  // namespace vantorium::env
