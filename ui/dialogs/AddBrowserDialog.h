#pragma once

#include "env/PathMap.h"
#include "ui/model/dialogs/BrowserEntry.h"
#include "ui/model/files/FileBrowser.h"

namespace vantorium::ui {

/// Shows frmAddBrowser over the active modal window, for the editors of the browser list.
class AddBrowserDialog : public BrowserEntryDialog {
 public:
  /// `programFolder` is where btnBrowse begins; path text.
  AddBrowserDialog(FileBrowser& files, const env::PathMap& paths, std::string programFolder)
      : files_(files), paths_(paths), programFolder_(std::move(programFolder)) {}

  void Show(BrowserEntry& entry) override;

 private:
  FileBrowser& files_;
  const env::PathMap& paths_;
  std::string programFolder_;
};

}  // namespace vantorium::ui
