#pragma once

#include "image/LogFont.h"
#include "image/TextRaster.h"

#include <cstdint>
#include <string_view>

namespace vantorium {

inline constexpr std::int16_t kTopLeftToBottomRight = 9;
inline constexpr std::int16_t kBottomLeftToTopRight = 10;

/// Where the watermark stands in a picture of that size. There is no margin: a straight text touches the picture's
/// edge, and one that is larger than the picture begins outside of it. A `placement` that does not exist is the top
/// left.
///
/// Sets `lfQuality`, `lfEscapement` and `lfOrientation` of the font. A diagonal text runs at the diagonal's angle cut
/// to whole degrees, its first line centred on the middle of the picture.
///
/// Throws RuntimeFailure Overflow when a side of the picture, the size of a straight text or a coordinate exceeds 16
/// bits, and DivisionByZero for the diagonal of a picture without width.
[[nodiscard]] TextPlace PlaceWatermark(LogFont& font, std::string_view text, std::int16_t placement,
                                       std::int32_t pictureWidth, std::int32_t pictureHeight, const TextRaster& raster);

}  // namespace vantorium
