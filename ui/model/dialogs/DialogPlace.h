#pragma once

#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"

#include <filesystem>
#include <string>

namespace vantorium {

/// Where a file dialog begins.
struct DialogPlace {
  std::filesystem::path folder;  ///< native; it exists unless there is not even a `home`
  std::string fileName;          ///< in the name box
};

/// The folder of `text`, or the nearest above it that exists; `home` when there is none, as for an empty text.
[[nodiscard]] std::filesystem::path NearestFolder(const PathMap& paths, const std::string& text,
                                                  const std::filesystem::path& home);

/// Where the dialog of a request begins. The folder of a file name with a path comes before the initial folder when it
/// exists; without either the dialog begins in `home`.
[[nodiscard]] DialogPlace PlaceOf(const FileDialogRequest& request, const PathMap& paths,
                                  const std::filesystem::path& home);

}  // namespace vantorium
