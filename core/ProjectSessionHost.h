#pragma once

#include "core/MovedFolders.h"
#include "env/WindowState.h"

#include <string>
#include <vector>

namespace vantorium::core {

/// What New, Open and Save need from the main window. A program without a window uses this class as it is. Functions
/// that also exist in other ports of a window mean the same there.
class ProjectSessionHost : public virtual env::WindowState {
 public:
  /// A small window with one text, shown during a wait.
  virtual void ShowInfoWindow(const std::string& /*text*/) {}
  virtual void HideInfoWindow() {}

  /// Asks where the folders of these photographs are, which have no place on this system. Returns what the user knows;
  /// nothing if the paths stay as they are.
  [[nodiscard]] virtual std::vector<MovedFolder> AskForMovedFolders(const std::vector<std::string>& /*sources*/) {
    return {};
  }

  virtual void RefreshTitleBar() {}
  /// The picture of the list's current row.
  virtual void RefreshPreview() {}
  /// The number of images, wherever shown.
  virtual void RefreshCounts() {}
  /// The label with the number of thumbnail pages.
  virtual void RefreshPageCount() {}

  virtual void HideDescriptionsWindow() {}
  virtual void SelectFirstTab() {}
  virtual void FocusTitleField() {}
  /// Fills the custom colors of the color dialog with the first 16 colors of the system.
  virtual void RebuildCustomColors() {}
};

}  // namespace vantorium::core
