#pragma once

#include "image/LogFont.h"
#include "image/TextRaster.h"
#include "image/cDIBSection.h"

#include <cstdint>
#include <string>

namespace vantorium::image::literal {

/// A straightforward version of DrawWatermarkText, which must produce the same bytes: draws the text in its color on
/// the complement of that color, and copies the result over the picture with the complement as the key. The reference
/// for tests.
void DrawWatermarkTextLiteral(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                              std::uint32_t color, std::uint8_t alpha, const TextRaster& raster);

}  // namespace vantorium::image::literal
