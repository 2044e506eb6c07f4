#include "image/Filters.h"
#include "image/FiltersLiteral.h"
#include "image/VectorClones.h"

#include <algorithm>

namespace vantorium::image {
namespace {

// Pixels are processed in pieces of this many, which stay in the L1 cache.
constexpr std::int32_t kPiece = 256;

// The random number has 24 bits, so r * spread is a multiple of 2^-24 that fits in 31 bits, and integer arithmetic is
// exact. The half added for rounding is one less if the whole part is even, so ties go to even.
inline std::int32_t Noisy(std::int32_t byte, std::uint32_t bits, std::int32_t spread) {
  const auto product = static_cast<std::int32_t>(bits) * spread;
  const std::int32_t whole = byte - spread / 2 + (product >> 24);
  const std::int32_t rest = product & 0xFFFFFF;
  return std::clamp(whole + ((rest + 0x7FFFFF + (whole & 1)) >> 24), 0, 255);
}

VANTORIUM_VECTOR_CLONES
void AddNoiseToBytes(std::uint8_t* bytes, std::int32_t count, NoiseRow noise, std::int32_t first, std::int32_t spread) {
  for (std::int32_t i = 0; i < count; ++i) {
    bytes[i] = static_cast<std::uint8_t>(Noisy(bytes[i], noise.Bits(NoiseStream::OfByte(first + i)), spread));
  }
}

// Sets all bits of `treated` for the pixels whose number is above the amount. A 24-bit number times 100 fits in 31
// bits.
VANTORIUM_VECTOR_CLONES
void ChoosePixels(std::uint8_t* treated, std::int32_t count, NoiseRow noise, std::int32_t first, std::int32_t amount) {
  for (std::int32_t i = 0; i < count; ++i) {
    const auto bits = static_cast<std::int32_t>(noise.Bits(NoiseStream::OfPixel(first + i)));
    treated[i] = bits * 100 > amount * 16777216 ? 0xFF : 0;
  }
}

VANTORIUM_VECTOR_CLONES
void TakeTreated(std::uint8_t* __restrict pixels, const std::uint8_t* noisy, const std::uint8_t* treated,
                 std::int32_t count) {
  const auto choose = [](std::uint8_t mask, std::uint8_t noise, std::uint8_t old) {
    return static_cast<std::uint8_t>(old ^ ((old ^ noise) & mask));
  };
  for (std::int32_t i = 0; i < count; ++i) {
    pixels[3 * i] = choose(treated[i], noisy[3 * i], pixels[3 * i]);
    pixels[3 * i + 1] = choose(treated[i], noisy[3 * i + 1], pixels[3 * i + 1]);
    pixels[3 * i + 2] = choose(treated[i], noisy[3 * i + 2], pixels[3 * i + 2]);
  }
}

struct NoiseAmount {
  std::int32_t spread;
  std::int32_t amount;
};

void AddRandomNoise(std::uint8_t* pixels, std::int32_t count, NoiseRow noise, std::int32_t first, NoiseAmount amount) {
  std::uint8_t noisy[3 * kPiece];
  std::uint8_t treated[kPiece];
  std::copy_n(pixels, 3 * count, noisy);
  AddNoiseToBytes(noisy, 3 * count, noise, 3 * first, amount.spread);
  ChoosePixels(treated, count, noise, first, amount.amount);
  TakeTreated(pixels, noisy, treated, count);
}

}  // namespace

void AddNoise(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream) {
  if (amount < 0 || amount > 100) {
    AddNoiseLiteral(dib, amount, random, stream);
    return;
  }
  const std::int32_t spread = amount * 128 / 100;
  stream.NextPass();
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    std::uint8_t* row = dib.Row(y);
    const NoiseRow noise = stream.Row(y);
    if (!random) {
      AddNoiseToBytes(row, dib.width() * 3, noise, 0, spread);
      continue;
    }
    for (std::int32_t x = 0; x < dib.width(); x += kPiece) {
      AddRandomNoise(row + 3 * x, std::min(kPiece, dib.width() - x), noise, x, {spread, amount});
    }
  }
}

}  // namespace vantorium::image
