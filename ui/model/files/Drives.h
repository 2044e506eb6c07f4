#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <vector>

namespace vantorium::ui {

/// A drive of path text, and the native folder it maps to.
struct Drive {
  char letter;
  std::filesystem::path folder;
};

/// All drives whose folders exist, by letter.
[[nodiscard]] std::vector<Drive> DriveFolders(const env::PathMap& paths);

}  // namespace vantorium::ui
