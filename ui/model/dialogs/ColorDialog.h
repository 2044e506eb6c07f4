#pragma once

#include "core/GalleryProject.h"
#include "env/mCommonDialogs.h"

namespace vantorium {

/// The only access to the system's color dialog. The user's custom colors last as long as the program.
class ColorDialog {
 public:
  explicit ColorDialog(mCommonDialogs& dialogs) : dialogs_(dialogs) {}

  /// Returns true on OK; only then changes `color`.
  [[nodiscard]] bool DisplayColorDialog2(Color& color) { return dialogs_.ShowColorDialog(color, custom_); }

  /// Replaces the custom colors by `systemColors`, the first 16 colors of the desktop.
  void RebuildCustomColors(const CustomColors& systemColors) { custom_ = systemColors; }
  [[nodiscard]] const CustomColors& Custom() const { return custom_; }

 private:
  mCommonDialogs& dialogs_;
  CustomColors custom_ = {};
};

}  // namespace vantorium
