#pragma once

#include "core/GalleryProject.h"
#include "env/BundledFiles.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::core {

/// A theme is a project whose settings other projects take over. Those that come with the program are project files
/// without images in the folder "themes", each beside a small picture of its gallery.
struct ThemeFile {
  std::string name;                              ///< of the file, without its extension
  std::filesystem::path project;                 ///< native
  std::optional<std::filesystem::path> picture;  ///< native; a JPEG file
};

/// Returns the themes among `files` in the order of their names. A user's own are in the folder "themes" of the
/// program's folder.
[[nodiscard]] std::vector<ThemeFile> FindThemes(const env::BundledFiles& files);

/// Returns the settings of the project file at `path` (path text), without its images, which need not exist. Returns
/// nullopt after message boxes that say why if the file cannot be read in whole.
[[nodiscard]] std::optional<GalleryProject> ReadTheme(const std::string& path, const env::PathMap& paths,
                                                      env::MessageBoxPort& boxes, env::EventLoop& events);

/// Gives `project` all settings of `theme`, except the gallery's title, the order in which the image list is kept
/// sorted, and those that even a reset keeps.
void ApplyTheme(GalleryProject& project, const GalleryProject& theme);

}  // namespace vantorium::core
