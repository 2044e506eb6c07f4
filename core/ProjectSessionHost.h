#pragma once

#include "env/WindowState.h"

#include <string>

namespace vantorium::core {

/// What New, Open and Save need from the main window. A program without a window uses this class as it is. Functions
/// that also exist in other ports of a window mean the same there.
class ProjectSessionHost : public virtual env::WindowState {
 public:
  /// A small window with one text, shown during a wait.
  virtual void ShowInfoWindow(const std::string& /*text*/) {}
  virtual void HideInfoWindow() {}

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
