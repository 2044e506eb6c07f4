#pragma once

#include "core/PageColors.h"
#include "ui/model/dialogs/ColorDialog.h"

#include <string>
#include <string_view>

namespace vantorium::ui {

/// The dialog for the colors of one kind of page, which can copy those of the other kind. It is cancelled until it is
/// applied.
class SelectColorsModel {
 public:
  /// A `title` that contains "Thumbnail" means the thumbnail pages. `others` are the colors of the other kind of page.
  SelectColorsModel(std::string_view title, const core::PageColors& colors, const core::PageColors& others);

  [[nodiscard]] const core::PageColors& Colors() const { return colors_; }
  /// Caption of the copy button.
  [[nodiscard]] std::string_view UseOtherColorsCaption() const;

  void Choose(core::Color core::PageColors::*which, ColorDialog& dialog);
  void UseOtherColors() { colors_ = others_; }

  void Apply() { cancelled_ = false; }
  void Cancel() { cancelled_ = true; }
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  bool thumbnailPage_;
  core::PageColors colors_;
  core::PageColors others_;
  bool cancelled_ = true;
};

}  // namespace vantorium::ui
