#pragma once

#include "tests/fakes/TemporaryFolder.h"

#include <filesystem>
#include <map>
#include <string>

namespace vantorium::fakes {

/// The bytes of all files in `folder` and its subfolders, by relative path. Empty if there is no such folder.
[[nodiscard]] inline std::map<std::string, std::string> FilesBelow(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  if (!std::filesystem::exists(folder)) return files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_directory()) {
      files[entry.path().lexically_relative(folder).generic_string()] = TemporaryFolder::ReadFile(entry.path());
    }
  }
  return files;
}

}  // namespace vantorium::fakes
