#pragma once

#include "image/cDIBSection.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// A pixel's color. In memory the order is blue, green, red.
struct RGB {
  int r = 0;
  int g = 0;
  int b = 0;
  bool operator==(const RGB&) const = default;
};
std::ostream& operator<<(std::ostream& stream, const RGB& color);

/// A picture of one color; its padding bytes are 0xA5.
[[nodiscard]] image::cDIBSection Plain(std::int32_t width, std::int32_t height, RGB color);
/// A picture of random bytes; its padding bytes are 0xA5.
[[nodiscard]] image::cDIBSection Random(std::int32_t width, std::int32_t height, unsigned seed);
/// A picture of 4096 x 4096 pixels with every possible color once.
[[nodiscard]] image::cDIBSection EveryColor();
[[nodiscard]] image::cDIBSection CopyOf(const image::cDIBSection& dib);

/// The pixel in column `x` from the left and memory row `y`.
[[nodiscard]] RGB PixelAt(const image::cDIBSection& dib, std::int32_t x, std::int32_t y);

/// Describes the first difference of two pictures. Empty if all their bytes are equal, including padding.
[[nodiscard]] std::string Difference(const image::cDIBSection& got, const image::cDIBSection& wanted);

/// Whether all padding bytes are still 0xA5.
[[nodiscard]] bool PaddingUntouched(const image::cDIBSection& dib);
/// Sets all bytes to 0xA5.
void Paint(image::cDIBSection& dib);

}  // namespace vantorium::fakes
