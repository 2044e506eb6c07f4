#pragma once

#include <cstdint>
#include <span>

namespace vantorium {

/// Turns a row of four bytes a pixel, cyan, magenta, yellow and black, into blue, green and red. Each byte is the ink,
/// or, without `areInks`, the light that the ink leaves.
void InksToBGR(std::span<const std::uint8_t> row, bool areInks, std::uint8_t* bgr);

}  // namespace vantorium
