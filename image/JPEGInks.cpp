#include "image/JPEGInks.h"

namespace vantorium::image {
namespace {

std::uint8_t Product(unsigned left, unsigned right) {
  return static_cast<std::uint8_t>((left * right + 127) / 255);
}

}  // namespace

// Each ink leaves a share of the light, and black leaves a share of that.
void InksToBGR(std::span<const std::uint8_t> row, bool areInks, std::uint8_t* bgr) {
  const unsigned turned = areInks ? 0xFF : 0;
  for (std::size_t i = 0; i + 3 < row.size(); i += 4, bgr += 3) {
    const unsigned black = row[i + 3] ^ turned;
    bgr[0] = Product(row[i + 2] ^ turned, black);
    bgr[1] = Product(row[i + 1] ^ turned, black);
    bgr[2] = Product(row[i] ^ turned, black);
  }
}

}  // namespace vantorium::image
