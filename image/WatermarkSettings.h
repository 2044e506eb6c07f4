#pragma once

#include <cstdint>
#include <string>

namespace vantorium::image {

/// The watermark of one target (images or thumbnails).
struct WatermarkSettings {
  std::int16_t checkUseWatermark = 0;  ///< 1 is on
  std::string textWatermark = {};
  std::int16_t comboTextPlacement = 10;  ///< 0 top left, row by row, to 8 bottom right; 9 and 10 the diagonals
  std::int16_t sliderAlpha = 65;         ///< percentage of the text in the blend, 1 to 100
  std::string FontName = "Arial";
  std::int16_t FontSize = 36;     ///< points
  std::int16_t FontWeight = 700;  ///< 400 is normal, 700 bold
  bool FontItalic = false;
  bool FontUnderline = false;
  bool FontStrikeout = false;
  std::uint32_t Color = 0xFFFFFF;  ///< 0x00BBGGRR
};

}  // namespace vantorium::image
