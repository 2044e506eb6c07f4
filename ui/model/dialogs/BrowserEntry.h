#pragma once

#include "env/PathMap.h"
#include "env/Preferences.h"

#include <string>

namespace vantorium {

/// The dialog `frmAddBrowser` as far as it is not drawn: the two texts of one browser and what its buttons do.
class BrowserEntry {
 public:
  BrowserEntry(std::string title, Browser texts) : title_(std::move(title)), texts_(std::move(texts)) {}

  /// Each time the dialog is shown, before the user can do anything.
  void ComeUp();
  /// A change of the text boxes browserName and browserLocation.
  void ChangeName(const std::string& text);
  void ChangeLocation(const std::string& text);
  /// browserLocation was left. A native path becomes path text; one with blanks that no file has may be a command line,
  /// and stays.
  void LeaveLocation(const PathMap& paths);
  /// The file that was chosen behind btnBrowse; none when it is empty. It enables OKButton whatever the name is.
  void TakeExecutable(const std::string& path);
  /// OKButton and the cancel button, which both hide the dialog. OKButton does nothing while it is disabled.
  void PressOK();
  void PressCancel() { cancelled_ = true; }

  [[nodiscard]] const std::string& Title() const { return title_; }
  [[nodiscard]] const Browser& Texts() const { return texts_; }
  [[nodiscard]] bool IsOKEnabled() const { return isOKEnabled_; }
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  void EnableOK();

  std::string title_;
  Browser texts_;
  bool isOKEnabled_ = false;
  bool cancelled_ = true;
};

/// Shows the dialog. Whoever implements it is the user.
class BrowserEntryDialog {
 public:
  virtual ~BrowserEntryDialog() = default;
  /// Shows the dialog modally, with its title and texts, and passes on what the user does until it is hidden. ComeUp
  /// was called.
  virtual void Show(BrowserEntry& entry) = 0;
};

}  // namespace vantorium
