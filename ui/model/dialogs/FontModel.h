#pragma once

#include <cstdint>

namespace vantorium::ui {

inline constexpr std::int32_t kNormalWeight = 400;
inline constexpr std::int32_t kBoldWeight = 700;

/// Font sizes that a font dialog offers, in points.
inline constexpr std::int32_t kSmallestFont = 1;
inline constexpr std::int32_t kLargestFont = 999;

/// Whether a weight shows as bold.
[[nodiscard]] constexpr bool IsBold(std::int32_t weight) {
  return weight >= 600;
}

/// Returns the weight after the bold switch is set to `bold`. A weight that already shows that way is unchanged.
[[nodiscard]] constexpr std::int32_t WeightFor(bool bold, std::int32_t weight) {
  if (bold == IsBold(weight)) return weight;
  return bold ? kBoldWeight : kNormalWeight;
}

/// Whether a sample in this color (0x00BBGGRR) needs a dark background, by the luminance of the color.
[[nodiscard]] constexpr bool NeedsDarkGround(std::uint32_t color) {
  const std::uint32_t light = 222 * (color & 0xFF) + 707 * (color >> 8 & 0xFF) + 71 * (color >> 16 & 0xFF);
  return light > 128U * 1000U;
}

}  // namespace vantorium::ui
