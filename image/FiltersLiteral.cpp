#include "image/FiltersLiteral.h"

#include "env/Numbers.h"
#include "env/RuntimeFailure.h"
#include "image/mHLSRGB.h"

#include <algorithm>

namespace vantorium::image {
namespace {

template <typename Number>
std::uint8_t Byte(Number value) {
  if (value < 0 || value > 255) throw env::RuntimeFailure(env::FailureKind::Overflow);
  return static_cast<std::uint8_t>(value);
}

// Calls filter(pixel, byte column, row): columns outside, rows inside, from the bottom left.
template <typename Filter>
void EachPixel(cDIBSection& dib, Filter filter) {
  for (std::int32_t x = 0; x <= (dib.width() - 1) * 3; x += 3) {
    for (std::int32_t y = 0; y < dib.height(); ++y) filter(dib.Row(y) + x, x, y);
  }
}

void LightenPixel(std::uint8_t* pixel, double factor) {
  float H = 0;
  float S = 0;
  float L = 0;
  RGBToHLS(pixel[2], pixel[1], pixel[0], H, S, L);
  L = static_cast<float>(L * factor);
  if (L > 1) L = 1;
  std::int32_t r = 0;
  std::int32_t g = 0;
  std::int32_t b = 0;
  HLSToRGB(H, S, L, r, g, b);
  pixel[0] = Byte(b);
  pixel[1] = Byte(g);
  pixel[2] = Byte(r);
}

}  // namespace

void GrayScaleLiteral(cDIBSection& dib) {
  EachPixel(dib, [](std::uint8_t* pixel, std::int32_t, std::int32_t) {
    const double v = env::RoundHalfEven((707 * pixel[1] + 222 * pixel[2] + 71 * pixel[0]) / 1000.0);
    std::fill_n(pixel, 3, Byte(v));
  });
}

void FadeLiteral(cDIBSection& dib, std::int32_t amount) {
  EachPixel(dib, [amount](std::uint8_t* pixel, std::int32_t, std::int32_t) {
    for (int i = 0; i < 3; ++i) pixel[i] = Byte(std::int64_t{pixel[i]} * amount / 255);
  });
}

void LightenLiteral(cDIBSection& dib, std::int32_t amount) {
  const double factor = amount / 100.0 + 1.0;
  EachPixel(dib, [factor](std::uint8_t* pixel, std::int32_t, std::int32_t) { LightenPixel(pixel, factor); });
}

void AddNoiseLiteral(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream) {
  const std::int64_t spread = std::int64_t{amount} * 128 / 100;
  const std::int64_t half = spread / 2;
  stream.NextPass();
  EachPixel(dib, [&](std::uint8_t* pixel, std::int32_t x, std::int32_t y) {
    const NoiseRow noise = stream.Row(y);
    if (random && !(noise.Uniform(NoiseStream::OfPixel(x / 3)) * 100.0 > amount)) return;
    for (int i = 0; i < 3; ++i) {
      const double r = noise.Uniform(NoiseStream::OfByte(x + i));
      const double v = env::RoundHalfEven(r * static_cast<double>(spread) + static_cast<double>(pixel[i] - half));
      pixel[i] = Byte(std::clamp(v, 0.0, 255.0));
    }
  });
}

}  // namespace vantorium::image
