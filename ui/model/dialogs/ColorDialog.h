#pragma once

#include "core/GalleryProject.h"
#include "env/mCommonDialogs.h"

namespace vantorium::ui {

/// The only access to the system's color dialog. The user's custom colors last as long as the program.
class ColorDialog {
 public:
  explicit ColorDialog(env::mCommonDialogs& dialogs) : dialogs_(dialogs) {}

  /// Returns true on OK; only then changes `color`.
  [[nodiscard]] bool DisplayColorDialog2(core::Color& color) { return dialogs_.ShowColorDialog(color, custom_); }

  /// Replaces the custom colors by `systemColors`, the first 16 colors of the desktop.
  void RebuildCustomColors(const env::CustomColors& systemColors) { custom_ = systemColors; }
  [[nodiscard]] const env::CustomColors& Custom() const { return custom_; }

 private:
  env::mCommonDialogs& dialogs_;
  env::CustomColors custom_ = {};
};

}  // namespace vantorium::ui
