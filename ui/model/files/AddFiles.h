#pragma once

#include "core/ImageListOperations.h"
#include "env/Preferences.h"
#include "ui/model/files/FileBrowser.h"

namespace vantorium::ui {

/// Lets the user choose photographs and adds them to the image list in the order the dialog returns them. The dialog
/// opens in the folder where images were last chosen and remembers the new folder.
class AddFiles {
 public:
  struct Parts {
    FileBrowser& browser;
    env::Preferences& preferences;
    core::ImageListOperations& images;
  };
  explicit AddFiles(const Parts& parts) : parts_(parts) {}

  void Run();

 private:
  Parts parts_;
};

}  // namespace vantorium::ui
