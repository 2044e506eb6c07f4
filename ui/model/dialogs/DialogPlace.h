#pragma once

#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"

#include <filesystem>
#include <string>

namespace vantorium::ui {

/// Where a file dialog starts.
struct DialogPlace {
  std::filesystem::path folder;  ///< native; exists unless it is `home` and that is missing
  std::string fileName;          ///< text of the name box
};

/// Returns the folder of `text` or its nearest existing parent; `home` if there is none or `text` is empty.
[[nodiscard]] std::filesystem::path NearestFolder(const env::PathMap& paths, const std::string& text,
                                                  const std::filesystem::path& home);

/// Returns where the dialog of a request starts. If the file name has a path, its folder takes precedence over the
/// initial folder if it exists. Without either the dialog starts in `home`.
[[nodiscard]] DialogPlace PlaceOf(const FileDialogRequest& request, const env::PathMap& paths,
                                  const std::filesystem::path& home);

}  // namespace vantorium::ui
