#pragma once

#include "image/LogFont.h"
#include "image/TextRaster.h"

#include <cstdint>
#include <string_view>

namespace vantorium::image {

inline constexpr std::int16_t kTopLeftToBottomRight = 9;
inline constexpr std::int16_t kBottomLeftToTopRight = 10;

/// Returns where the watermark is drawn in a picture of that size. There is no margin: straight text touches the
/// picture's edge, and text larger than the picture may begin outside it. An unknown `placement` means the top left.
///
/// Sets `lfQuality`, `lfEscapement` and `lfOrientation` of the font. Diagonal text runs at the diagonal's angle,
/// truncated to whole degrees, with its first line centered in the picture.
///
/// Throws RuntimeFailure Overflow if a side of the picture, the size of a straight text or a coordinate exceeds 16
/// bits, and DivisionByZero for the diagonal of a picture of width 0.
[[nodiscard]] TextPlace PlaceWatermark(LogFont& font, std::string_view text, std::int16_t placement,
                                       std::int32_t pictureWidth, std::int32_t pictureHeight, const TextRaster& raster);

}  // namespace vantorium::image
