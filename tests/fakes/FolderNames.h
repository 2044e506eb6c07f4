#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// The sorted names of a folder's entries, including hidden files.
inline std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace vantorium::fakes
