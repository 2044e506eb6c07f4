#pragma once

#include "env/WindowState.h"
#include "ui/model/dialogs/BrowserList.h"
#include "ui/model/main/BrowserMenus.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium::ui {

/// What EditBrowsers needs from the main window.
class BrowserTableHost : public virtual env::WindowState {
 public:
  /// Shows frmBrowserList modally, with the entries of `list`, and passes the user's actions to `list` until it is
  /// closed.
  virtual void ShowBrowserList(BrowserList& list) = 0;
  /// Replaces the entries of the toolbar's drop-down list and of the menu.
  virtual void ShowBrowserMenus(const BrowserMenus& menus) = 0;
};

/// Lets the user edit `browsers`, rebuilds the menus and writes the list to the preferences file, creating its folder
/// if it is missing. Returns false if the list could not be written; it then holds only until the program ends.
[[nodiscard]] bool EditBrowsers(std::vector<env::Browser>& browsers, const std::filesystem::path& preferencesFile,
                                BrowserTableHost& host, BrowserEntryDialog& dialog, env::MessageBoxPort& boxes);

}  // namespace vantorium::ui
