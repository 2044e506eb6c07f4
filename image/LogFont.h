#pragma once

#include "image/WatermarkSettings.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// A font as text drawing is asked for one.
struct LogFont {
  std::int32_t lfHeight = 0;       ///< pixels: below 0 of the em, above 0 of a line; 0 leaves the size to the drawing
  std::int32_t lfEscapement = 0;   ///< angle of the line of text in tenths of a degree, counterclockwise
  std::int32_t lfOrientation = 0;  ///< angle of each letter; always the same as lfEscapement
  std::int32_t lfWeight = 0;       ///< 400 is normal, 700 bold; 0 leaves the weight to the drawing
  std::uint8_t lfItalic = 0;
  std::uint8_t lfUnderline = 0;
  std::uint8_t lfStrikeOut = 0;
  std::uint8_t lfQuality = 0;   ///< 3: no antialiasing
  std::string lfFaceName = {};  ///< UTF-8, at most 31 characters
};

inline constexpr std::uint8_t kNonAntialiasedQuality = 3;

/// What a LogFont has room for of the name of a face.
[[nodiscard]] std::string FaceNameOf(const std::string& name);

/// The font that a watermark is set in. `pixelsPerInch` are those of a vertical inch of the screen: the size of the
/// text depends on them and on its points, never on the picture.
[[nodiscard]] LogFont MakeWatermarkFont(const WatermarkSettings& settings, std::int32_t pixelsPerInch);

}  // namespace vantorium
