#pragma once

#include "env/mCommonDialogs.h"

namespace vantorium {

/// The colour dialog of the toolkit and a font dialog of the program's own, both over the active window and the same on
/// every desktop.
class QtCommonDialogs : public mCommonDialogs {
 public:
  QtCommonDialogs() { lastCustom_.fill(0xFFFFFF); }

  [[nodiscard]] bool ShowColorDialog(std::uint32_t& colour, CustomColours& custom) override;
  /// Its colours are chosen with the custom colours of the colour dialog that was last shown.
  [[nodiscard]] bool ShowFontDialog(FontDescription& font) override;

 private:
  CustomColours lastCustom_;
};

}  // namespace vantorium
