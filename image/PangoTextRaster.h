#pragma once

#include "image/TextRaster.h"

#include <memory>

namespace vantorium {

/// Texts of any script by Pango and Cairo. A letter that the font lacks comes from another font of the machine, or as a
/// box; a colored one as its shape, or as a box when it is very large.
class PangoTextRaster : public TextRaster {
 public:
  /// The machine's font settings are read with the first text, which takes some milliseconds.
  PangoTextRaster();
  ~PangoTextRaster() override;
  PangoTextRaster(const PangoTextRaster&) = delete;
  PangoTextRaster& operator=(const PangoTextRaster&) = delete;

  [[nodiscard]] TextExtent Measure(const LogFont& font, std::string_view text, TextForm form) const override;
  [[nodiscard]] TextMask Draw(const LogFont& font, std::string_view text, const TextPlace& place,
                              std::int32_t pictureWidth, std::int32_t pictureHeight) const override;
  [[nodiscard]] std::vector<std::string> FaceNames() const override;

 private:
  // The libraries' objects are not to be used from two threads at once.
  struct Fonts;
  std::unique_ptr<Fonts> fonts_;
};

}  // namespace vantorium
