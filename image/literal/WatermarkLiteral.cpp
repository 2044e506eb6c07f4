#include "image/literal/WatermarkLiteral.h"

#include "image/WatermarkPlace.h"
#include "image/literal/TransparentCopyLiteral.h"

#include <tuple>

namespace vantorium::image::literal {
namespace {

void SetPixel(std::uint8_t* pixel, std::uint32_t color) {
  pixel[0] = static_cast<std::uint8_t>(color >> 16);
  pixel[1] = static_cast<std::uint8_t>(color >> 8);
  pixel[2] = static_cast<std::uint8_t>(color);
}

}  // namespace

void DrawWatermarkTextLiteral(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                              std::uint32_t color, std::uint8_t alpha, const TextRaster& raster) {
  cDIBSection mask;
  if (!mask.Create(dib.width(), dib.height())) return;
  const TextPlace place = PlaceWatermark(font, text, placement, dib.width(), dib.height(), raster);
  const TextMask drawn = raster.Draw(font, text, place, dib.width(), dib.height());
  const std::uint32_t key = 0xFFFFFFU - color;
  for (std::int32_t y = 0; y < mask.height(); ++y) {
    std::uint8_t* row = mask.Row(mask.height() - 1 - y);
    for (std::int32_t x = 0; x < mask.width(); ++x)
      SetPixel(row + static_cast<std::ptrdiff_t>(x) * 3, drawn.Covers(x, y) ? color : key);
  }
  std::ignore = TransparentCopyLiteral(mask, dib, key, alpha);
}

}  // namespace vantorium::image::literal
