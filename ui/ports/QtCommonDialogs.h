#pragma once

#include "env/mCommonDialogs.h"
#include "image/TextRaster.h"

namespace vantorium::ui {

/// Qt's color dialog and the program's own font dialog, both over the active window and the same on every desktop.
class QtCommonDialogs : public env::mCommonDialogs {
 public:
  /// `texts` draws with the fonts that the font dialog lists.
  explicit QtCommonDialogs(const image::TextRaster& texts) : texts_(texts) { lastCustom_.fill(0xFFFFFF); }

  [[nodiscard]] bool ShowColorDialog(std::uint32_t& color, env::CustomColors& custom) override;
  /// The color is chosen with the custom colors of the color dialog that was last accepted. Throws what
  /// TextRaster::FaceNames throws.
  [[nodiscard]] bool ShowFontDialog(env::FontDescription& font) override;

 private:
  const image::TextRaster& texts_;
  env::CustomColors lastCustom_;
};

}  // namespace vantorium::ui
