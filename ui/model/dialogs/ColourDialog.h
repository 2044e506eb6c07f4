#pragma once

#include "core/GalleryProject.h"
#include "env/mCommonDialogs.h"

namespace vantorium {

/// The one door to the system's colour dialog. The user's own colours live as long as the program.
class ColourDialog {
 public:
  explicit ColourDialog(mCommonDialogs& dialogs) : dialogs_(dialogs) {}

  /// True on OK; only then `colour` is another one.
  [[nodiscard]] bool DisplayColorDialog2(Colour& colour) { return dialogs_.ShowColorDialog(colour, custom_); }

  /// `systemColours`: the first 16 colours of the desktop.
  void RebuildCustomColours(const CustomColours& systemColours) { custom_ = systemColours; }
  [[nodiscard]] const CustomColours& Custom() const { return custom_; }

 private:
  mCommonDialogs& dialogs_;
  CustomColours custom_ = {};
};

}  // namespace vantorium
