#pragma once

#include "core/ImageListOperations.h"
#include "env/Preferences.h"
#include "ui/model/files/FileBrowser.h"

namespace vantorium {

/// Lets the user choose photographs and adds them to the image list in the order that the dialog gives. It opens where
/// images were last picked, and remembers the folder.
class AddFiles {
 public:
  struct Parts {
    FileBrowser& browser;
    Preferences& preferences;
    ImageListOperations& images;
  };
  explicit AddFiles(const Parts& parts) : parts_(parts) {}

  void Run();

 private:
  Parts parts_;
};

}  // namespace vantorium
