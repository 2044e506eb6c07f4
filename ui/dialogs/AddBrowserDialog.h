#pragma once

#include "env/PathMap.h"
#include "ui/model/dialogs/BrowserEntry.h"
#include "ui/model/files/FileBrowser.h"

namespace vantorium {

/// frmAddBrowser above the window that is in front, for whoever edits the list of browsers.
class AddBrowserDialog : public BrowserEntryDialog {
 public:
  /// `programFolder`: path text, where btnBrowse begins.
  AddBrowserDialog(FileBrowser& files, const PathMap& paths, std::string programFolder)
      : files_(files), paths_(paths), programFolder_(std::move(programFolder)) {}

  void Show(BrowserEntry& entry) override;

 private:
  FileBrowser& files_;
  const PathMap& paths_;
  std::string programFolder_;
};

}  // namespace vantorium
