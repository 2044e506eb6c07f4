#pragma once

#include "ui/model/dialogs/ColourDialog.h"

#include <string>
#include <string_view>

namespace vantorium {

/// The five colours of a kind of page.
struct PageColours {
  Colour background = 0;
  Colour text = 0;
  Colour link = 0;
  Colour visitedLink = 0;
  Colour activeLink = 0;

  bool operator==(const PageColours&) const = default;
};

/// The dialog for the colours of one kind of page, which can copy those of the other kind. It is cancelled until it is
/// applied.
class SelectColorsModel {
 public:
  /// A `title` with "Thumbnail" in it is that of the thumbnail pages. `others` are those of the other kind of page.
  SelectColorsModel(std::string_view title, const PageColours& colours, const PageColours& others);

  [[nodiscard]] const PageColours& Colours() const { return colours_; }
  /// Caption of the button that copies.
  [[nodiscard]] std::string_view UseOtherColorsCaption() const;

  void Choose(Colour PageColours::*which, ColourDialog& dialog);
  void UseOtherColors() { colours_ = others_; }

  void Apply() { cancelled_ = false; }
  void Cancel() { cancelled_ = true; }
  [[nodiscard]] bool Cancelled() const { return cancelled_; }

 private:
  bool thumbnailPage_;
  PageColours colours_;
  PageColours others_;
  bool cancelled_ = true;
};

}  // namespace vantorium
