#include "image/Filters.h"

#include "image/FiltersLiteral.h"
#include "image/VectorClones.h"

#include <algorithm>
#include <cmath>

namespace vantorium::image {
namespace {

// The luminance is a quotient of integers up to 255000, which floats represent exactly. Rounding the quotient to a
// float never crosses a tie, because ties are floats too; adding 1.5 * 2^23 then leaves no bits for a fraction and
// rounds ties to even.
VANTORIUM_VECTOR_CLONES
void GrayScaleRow(std::uint8_t* row, std::size_t width) {
  constexpr float kNoFraction = 12582912.0F;
  for (std::size_t i = 0; i < width; ++i) {
    const std::int32_t thousandths = 71 * row[3 * i] + 707 * row[3 * i + 1] + 222 * row[3 * i + 2];
    const float rounded = (static_cast<float>(thousandths) / 1000.0F + kNoFraction) - kNoFraction;
    const auto v = static_cast<std::uint8_t>(static_cast<std::int32_t>(rounded));
    row[3 * i] = v;
    row[3 * i + 1] = v;
    row[3 * i + 2] = v;
  }
}

// p / 255 equals (p + 1 + p / 256) / 256 for every product of two bytes, and all intermediate values fit in 16 bits.
VANTORIUM_VECTOR_CLONES
void FadeRow(std::uint8_t* row, std::size_t bytes, std::uint16_t amount) {
  for (std::size_t i = 0; i < bytes; ++i) {
    const auto product = static_cast<std::uint16_t>(row[i] * amount);
    row[i] = static_cast<std::uint8_t>(static_cast<std::uint16_t>(product + 1 + (product >> 8)) >> 8);
  }
}

}  // namespace

void GrayScale(cDIBSection& dib) {
  for (std::int32_t y = 0; y < dib.height(); ++y) GrayScaleRow(dib.Row(y), static_cast<std::size_t>(dib.width()));
}

void Fade(cDIBSection& dib, std::int32_t amount) {
  if (amount < 0 || amount > 255) {
    FadeLiteral(dib, amount);
    return;
  }
  const auto bytes = static_cast<std::size_t>(dib.width()) * 3;
  for (std::int32_t y = 0; y < dib.height(); ++y) FadeRow(dib.Row(y), bytes, static_cast<std::uint16_t>(amount));
}

void RandomiseBits(cDIBSection& dib, bool gray, NoiseStream& stream) {
  stream.NextPass();
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    const NoiseRow noise = stream.Row(y);
    const auto byteAt = [&noise](std::int32_t x) {
      return static_cast<std::uint8_t>(std::nearbyint(noise.Uniform(NoiseStream::OfByte(x)) * 255.0));
    };
    for (std::int32_t x = 0; x < dib.width() * 3; x += 3) {
      std::uint8_t* pixel = dib.Row(y) + x;
      pixel[0] = gray ? byteAt(x) : std::uint8_t{0};
      pixel[1] = gray ? pixel[0] : byteAt(x + 1);
      pixel[2] = gray ? pixel[0] : byteAt(x + 2);
    }
  }
}

}  // namespace vantorium::image
