#pragma once

#include "env/MessageBoxPort.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <string>

namespace vantorium::ui {

/// The file dialog of the whole program, shown over the active window. Its window is called frmFileBrowser. If the
/// caller names no folder, it begins in the folder where it was last accepted; the first time, in the user's home
/// folder.
class frmFileBrowser : public FileBrowser {
 public:
  frmFileBrowser(const env::PathMap& paths, env::MessageBoxPort& boxes, const env::mFileFunctions& files);

  [[nodiscard]] FileDialogResult DisplayFileDialog(const FileDialogRequest& request) override;

 private:
  const env::PathMap& paths_;
  env::MessageBoxPort& boxes_;
  const env::mFileFunctions& files_;
  std::string folder_;
};

}  // namespace vantorium::ui
