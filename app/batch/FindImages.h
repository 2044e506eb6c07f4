#pragma once

#include "env/PathMap.h"

#include <string>
#include <vector>

namespace vantorium::batch {

/// The images that a path on the command line names, as path text, or what is wrong with the path.
struct FoundImages {
  std::vector<std::string> paths;
  std::string problem;
};

/// Returns `typed` itself if it is an image file. For a folder, returns its image files in the order of their names
/// and, if `recursive`, then those of its subfolders, also in the order of their names. Does not follow links to
/// folders. Path text keeps the drive that was typed.
[[nodiscard]] FoundImages FindImages(const std::string& typed, bool recursive, const env::PathMap& paths);

}  // namespace vantorium::batch
