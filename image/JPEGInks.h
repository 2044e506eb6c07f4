#pragma once

#include <cstdint>
#include <span>

namespace vantorium::image {

/// Converts a row of 4 bytes per pixel (cyan, magenta, yellow, black) to blue, green, red. With `areInks` each byte is
/// the amount of ink, otherwise the light that the ink leaves.
void InksToBGR(std::span<const std::uint8_t> row, bool areInks, std::uint8_t* bgr);

}  // namespace vantorium::image
