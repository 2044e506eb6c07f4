#include "tests/image/PictureFixtures.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <stdexcept>

namespace vantorium::fakes {
namespace {

constexpr std::uint8_t kPadding = 0xA5;

image::cDIBSection Made(std::int32_t width, std::int32_t height) {
  image::cDIBSection dib;
  if (!dib.Create(width, height)) throw std::runtime_error("no memory for a test picture");
  Paint(dib);
  return dib;
}

std::size_t Bytes(const image::cDIBSection& dib) {
  return static_cast<std::size_t>(dib.BytesPerScanLine()) * static_cast<std::size_t>(dib.height());
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const RGB& color) {
  return stream << "(" << color.r << ", " << color.g << ", " << color.b << ")";
}

void Paint(image::cDIBSection& dib) {
  std::memset(dib.DIBSectionBitsPtr(), kPadding, Bytes(dib));
}

image::cDIBSection Plain(std::int32_t width, std::int32_t height, RGB color) {
  image::cDIBSection dib = Made(width, height);
  for (std::int32_t y = 0; y < height; ++y) {
    for (std::int32_t x = 0; x < width; ++x) {
      const int channels[] = {color.b, color.g, color.r};
      for (int i = 0; i < 3; ++i) dib.Row(y)[3 * x + i] = static_cast<std::uint8_t>(channels[i]);
    }
  }
  return dib;
}

image::cDIBSection Random(std::int32_t width, std::int32_t height, unsigned seed) {
  std::mt19937 generator(seed);
  image::cDIBSection dib = Made(width, height);
  for (std::int32_t y = 0; y < height; ++y) {
    std::generate_n(dib.Row(y), 3 * width, [&generator] { return static_cast<std::uint8_t>(generator() >> 24); });
  }
  return dib;
}

image::cDIBSection EveryColor() {
  image::cDIBSection dib = Made(4096, 4096);
  std::uint8_t* byte = dib.DIBSectionBitsPtr();
  for (std::uint32_t color = 0; color < 1U << 24; ++color) {
    *byte++ = static_cast<std::uint8_t>(color);
    *byte++ = static_cast<std::uint8_t>(color >> 8);
    *byte++ = static_cast<std::uint8_t>(color >> 16);
  }
  return dib;
}

image::cDIBSection CopyOf(const image::cDIBSection& dib) {
  image::cDIBSection copy = Made(dib.width(), dib.height());
  std::memcpy(copy.DIBSectionBitsPtr(), dib.DIBSectionBitsPtr(), Bytes(dib));
  return copy;
}

RGB PixelAt(const image::cDIBSection& dib, std::int32_t x, std::int32_t y) {
  const std::uint8_t* pixel = dib.Row(y) + 3 * x;
  return {pixel[2], pixel[1], pixel[0]};
}

std::string Difference(const image::cDIBSection& got, const image::cDIBSection& wanted) {
  if (got.width() != wanted.width() || got.height() != wanted.height()) return "the sizes differ";
  const std::uint8_t* first = got.DIBSectionBitsPtr();
  const auto [at, other] = std::mismatch(first, first + Bytes(got), wanted.DIBSectionBitsPtr());
  if (at == first + Bytes(got)) return {};
  const auto place = at - first;
  return "byte column " + std::to_string(place % got.BytesPerScanLine()) + " of row " +
         std::to_string(place / got.BytesPerScanLine()) + " is " + std::to_string(*at) + " and not " +
         std::to_string(*other);
}

bool PaddingUntouched(const image::cDIBSection& dib) {
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    const std::uint8_t* row = dib.Row(y);
    if (!std::all_of(row + 3 * dib.width(), row + dib.BytesPerScanLine(), [](auto byte) { return byte == kPadding; })) {
      return false;
    }
  }
  return true;
}

}  // namespace vantorium::fakes
