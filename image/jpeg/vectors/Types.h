#pragma once

#include <algorithm>
#include <cstdint>

namespace vantorium::image::jpeg {

/// Clamps to the range of a sample.
[[nodiscard]] inline std::uint8_t ToSample(int value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

/// Vectors of 128 bits. The compiler adds, subtracts and shifts them lane by lane.
using Shorts [[gnu::vector_size(16)]] = std::int16_t;
using Ints [[gnu::vector_size(16)]] = std::int32_t;

[[nodiscard]] inline Shorts EightTimes(int value) {
  const auto lane = static_cast<std::int16_t>(value);
  return Shorts{lane, lane, lane, lane, lane, lane, lane, lane};
}
[[nodiscard]] inline Ints FourTimes(int value) {
  return Ints{value, value, value, value};
}

}  // namespace vantorium::image::jpeg
