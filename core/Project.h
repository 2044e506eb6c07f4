#pragma once

#include "core/GalleryProject.h"
#include "core/ImageList.h"

#include <string>

namespace vantorium::core {

/// The one project that the program works on: its settings, its images and its relation to its file.
struct Project {
  GalleryProject settings;
  ImageList images;

  std::string ProjectFileName;       ///< with its extension; a new project's name has none
  std::string ProjectFolder;         ///< with its trailing backslash
  std::string LastProjectFolder;     ///< initial folder of the project file dialogs
  std::int16_t UntitledCounter = 0;  ///< projects created since the program started
  bool IsModified = false;           ///< differs from its file
  bool IsPristine = false;           ///< nothing has happened to this new project yet
  bool IsUntitled = false;           ///< has no file yet; saving asks for a name

  /// Returns "Gallery" with the number of the current new project.
  [[nodiscard]] std::string UntitledName() const { return "Gallery" + std::to_string(UntitledCounter); }
};

}  // namespace vantorium::core
