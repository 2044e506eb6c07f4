#pragma once

#include "image/LogFont.h"
#include "image/TextRaster.h"
#include "image/cDIBSection.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// What DrawWatermarkText has to equal byte for byte, written as plainly as the rule is told: a picture of the text in
/// its color on the complement of that color, copied over the picture with the complement as the key. Kept as the
/// reference of the tests.
void DrawWatermarkTextLiteral(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                              std::uint32_t color, std::uint8_t alpha, const TextRaster& raster);

}  // namespace vantorium
