#pragma once

#include "env/mCommonDialogs.h"
#include "ui/model/main/BrowserMenus.h"

#include <cstddef>
#include <string>

namespace vantorium::ui {

/// What MainModel shows in the main window and its pages.
class MainView {
 public:
  virtual ~MainView() = default;

  virtual void ShowTitle(const std::string& text) = 0;
  virtual void ShowStatus(const std::string& text) = 0;      ///< in panel 1 of the status bar
  virtual void ShowImageCount(const std::string& text) = 0;  ///< in panel 2 of the status bar
  virtual void ShowPageCount(const std::string& text) = 0;   ///< on the page of the thumbnails
  virtual void ShowBrowserMenus(const BrowserMenus& menus) = 0;
  virtual void ShowBusyPointer(bool busy) = 0;
  /// Passes the keyboard back to where it was when the window was disabled.
  virtual void EnableMainWindow(bool enabled) = 0;

  /// Shows the settings of the project as they are now.
  virtual void ShowSettings() = 0;
  /// Shows the image list of the project, which may be another one than before.
  virtual void ShowImages() = 0;
  /// Starts to show the list's current row in the preview.
  virtual void ShowPreview() = 0;
  /// `position` counts from 1.
  virtual void ScrollIntoView(std::size_t position) = 0;
  virtual void SelectFirstTab() = 0;
  virtual void FocusTitleField() = 0;
  /// Returns the first 16 colors of the desktop.
  [[nodiscard]] virtual env::CustomColors SystemColors() const = 0;
};

}  // namespace vantorium::ui
