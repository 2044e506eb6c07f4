#pragma once

#include "env/MessageBoxPort.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <string>

namespace vantorium {

/// The file dialog of the whole program, shown over the active window. Its window is called frmFileBrowser. If the
/// caller names no folder, it begins in the folder where it was last accepted; the first time, in the user's home
/// folder.
class frmFileBrowser : public FileBrowser {
 public:
  frmFileBrowser(const PathMap& paths, MessageBoxPort& boxes, const mFileFunctions& files);

  [[nodiscard]] FileDialogResult DisplayFileDialog(const FileDialogRequest& request) override;

 private:
  const PathMap& paths_;
  MessageBoxPort& boxes_;
  const mFileFunctions& files_;
  std::string folder_;
};

}  // namespace vantorium
