#pragma once

#include "ui/model/dialogs/BrowserList.h"
#include "ui/model/main/BrowserMenus.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vantorium {

/// What the browser table asks of the main window.
class BrowserTableHost {
 public:
  virtual ~BrowserTableHost() = default;
  /// Shows frmBrowserList modally, with the entries of `list`, and passes on what the user does until it is closed.
  virtual void ShowBrowserList(BrowserList& list) = 0;
  /// Puts the entries into the toolbar's drop-down list and the menu, in place of those that are there.
  virtual void ShowBrowserMenus(const BrowserMenus& menus) = 0;
  virtual void ShowBusyPointer(bool busy) = 0;
  virtual void ShowStatus(const std::string& text) = 0;
};

/// Lets the user edit `browsers`, rebuilds the menus and writes the list into the preferences file, whose folder is
/// made when it is missing. False when the list could not be written: it holds until the program ends then.
[[nodiscard]] bool EditBrowsers(std::vector<Browser>& browsers, const std::filesystem::path& preferencesFile,
                                BrowserTableHost& host, BrowserEntryDialog& dialog, MessageBoxPort& boxes);

}  // namespace vantorium
