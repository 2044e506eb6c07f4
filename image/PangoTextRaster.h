#pragma once

#include "image/TextRaster.h"

#include <memory>

namespace vantorium::image {

/// Draws text of any script with Pango and Cairo. A letter that the font lacks is drawn from another font of the
/// machine, or as a box; a color glyph is drawn as its shape, or as a box when it is very large.
class PangoTextRaster : public TextRaster {
 public:
  /// The machine's font settings are read on first use, which takes some milliseconds.
  PangoTextRaster();
  ~PangoTextRaster() override;
  PangoTextRaster(const PangoTextRaster&) = delete;
  PangoTextRaster& operator=(const PangoTextRaster&) = delete;

  [[nodiscard]] TextExtent Measure(const LogFont& font, std::string_view text, TextForm form) const override;
  [[nodiscard]] TextMask Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                              std::int32_t pictureWidth, std::int32_t pictureHeight) const override;
  [[nodiscard]] std::vector<std::string> FaceNames() const override;

 private:
  // The objects of Pango, Cairo and Fontconfig must not be used by two threads at once.
  struct Fonts;
  std::unique_ptr<Fonts> fonts_;
};

}  // namespace vantorium::image
