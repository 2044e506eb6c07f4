#pragma once

#include "env/PathMap.h"
#include "env/Preferences.h"

#include <string>

namespace vantorium::ui {

/// The logic of the dialog `frmAddBrowser`, without its widgets: the two texts of one browser and what the buttons do.
class BrowserEntry {
 public:
  BrowserEntry(std::string title, env::Browser texts) : title_(std::move(title)), texts_(std::move(texts)) {}

  /// Call each time the dialog is shown, before the user can do anything. Resets Cancelled() to true.
  void ComeUp();
  /// The text box browserName or browserLocation changed.
  void ChangeName(const std::string& text);
  void ChangeLocation(const std::string& text);
  /// browserLocation lost the focus. A native path becomes path text. A text with blanks that names no existing file
  /// may be a command line and stays unchanged.
  void LeaveLocation(const env::PathMap& paths);
  /// Takes the file chosen with btnBrowse; an empty `path` does nothing. Enables OKButton whatever the name is.
  void TakeExecutable(const std::string& path);
  /// OKButton and the cancel button, which both hide the dialog. OKButton does nothing while it is disabled.
  void PressOK();
  void PressCancel() { cancelled_ = true; }

  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] const env::Browser& Texts() const { return texts_; }
  [[nodiscard]] bool IsOKEnabled() const { return isOKEnabled_; }
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  void EnableOK();

  std::string title_;
  env::Browser texts_;
  bool isOKEnabled_ = false;
  bool cancelled_ = true;
};

/// The port that shows the dialog.
class BrowserEntryDialog {
 public:
  virtual ~BrowserEntryDialog() = default;
  /// Shows the dialog modally, with its title and texts, and passes the user's actions to `entry` until the dialog is
  /// hidden. The caller has called ComeUp.
  virtual void Show(BrowserEntry& entry) = 0;
};

}  // namespace vantorium::ui
