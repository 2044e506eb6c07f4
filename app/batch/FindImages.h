#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

/// The images that a path on the command line stands for, as path text, or what is wrong with the path.
struct FoundImages {
  std::vector<std::string> paths;
  std::string problem;
};

/// Of `typed`, an image file itself; of a folder its image files in the order of their names and, when `recursive`,
/// then those of its sub folders, again in the order of their names. Links to folders are not followed. Path text keeps
/// the drive that was typed.
[[nodiscard]] FoundImages FindImages(const std::string& typed, bool recursive, const PathMap& paths);

}  // namespace vantorium
