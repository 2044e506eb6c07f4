#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

/// The images that a path on the command line stands for, or what is wrong with the path.
struct FoundImages {
  std::vector<std::filesystem::path> files;
  std::string problem;
};

/// An image file itself; of a folder its image files in the order of their names and, when `recursive`, then those of
/// its sub folders, again in the order of their names. Links to folders are not followed.
[[nodiscard]] FoundImages FindImages(const std::filesystem::path& path, bool recursive);

/// The native path of a path as it was typed, absolute. A path that has no native one comes back as it is.
[[nodiscard]] std::filesystem::path NativePathOf(const std::string& typed, const PathMap& paths);

}  // namespace vantorium
