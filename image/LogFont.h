#pragma once

#include "image/WatermarkSettings.h"

#include <cstdint>
#include <string>

namespace vantorium::image {

/// A request for a font.
struct LogFont {
  std::int32_t lfHeight = 0;  ///< pixels: negative for the em height, positive for the line height, 0 for the default
  std::int32_t lfEscapement = 0;   ///< angle of the line of text in tenths of a degree, counterclockwise
  std::int32_t lfOrientation = 0;  ///< angle of each letter; always equal to lfEscapement
  std::int32_t lfWeight = 0;       ///< 400 is normal, 700 bold; 0 the default
  std::uint8_t lfItalic = 0;
  std::uint8_t lfUnderline = 0;
  std::uint8_t lfStrikeOut = 0;
  std::uint8_t lfQuality = 0;   ///< 3: no antialiasing
  std::string lfFaceName = {};  ///< UTF-8, at most 31 characters
};

inline constexpr std::uint8_t kNonAntialiasedQuality = 3;

/// Returns as much of a face name as fits in a LogFont.
[[nodiscard]] std::string FaceNameOf(const std::string& name);

/// Returns the font of a watermark. `pixelsPerInch` is the screen's vertical resolution: the size of the text depends
/// on it and on the point size, never on the picture.
[[nodiscard]] LogFont MakeWatermarkFont(const WatermarkSettings& settings, std::int32_t pixelsPerInch);

}  // namespace vantorium::image
