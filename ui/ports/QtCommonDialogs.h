#pragma once

#include "env/mCommonDialogs.h"
#include "image/TextRaster.h"

namespace vantorium {

/// Qt's color dialog and the program's own font dialog, both over the active window and the same on every desktop.
class QtCommonDialogs : public mCommonDialogs {
 public:
  /// `texts` draws with the fonts that the font dialog lists.
  explicit QtCommonDialogs(const TextRaster& texts) : texts_(texts) { lastCustom_.fill(0xFFFFFF); }

  [[nodiscard]] bool ShowColorDialog(std::uint32_t& color, CustomColors& custom) override;
  /// The color is chosen with the custom colors of the color dialog that was last accepted. Throws what
  /// TextRaster::FaceNames throws.
  [[nodiscard]] bool ShowFontDialog(FontDescription& font) override;

 private:
  const TextRaster& texts_;
  CustomColors lastCustom_;
};

}  // namespace vantorium
