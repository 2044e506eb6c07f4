#include "image/Filters.h"
#include "image/FiltersLiteral.h"
#include "image/VectorClones.h"

#include <algorithm>

namespace vantorium::image {
namespace {

// Converts to hue, saturation and lightness and back like mHLSRGB, but stage by stage over pieces of a row, so that the
// compiler can process several pixels at a time. Every rounding is the same as in mHLSRGB.
//
// The bytes alone determine which channel is the highest and on which side of its hue the pixel lies, so the channels
// are sorted first and put back at the end. If two channels are the highest, mHLSRGB may return with the other one as
// the highest and this one as the middle one; both then have the same byte.

// Pixels in a piece: few enough to stay in the L1 cache.
constexpr std::size_t kPiece = 128;

// The pixels of a piece, with their channels sorted by value.
struct SortedBytes {
  std::uint8_t high[kPiece];
  std::uint8_t middle[kPiece];
  std::uint8_t low[kPiece];
  std::uint8_t place[kPiece];  // the hue of the highest channel, 0, 2 or 4, plus kFalling if the pixel's hue is below
};
constexpr std::uint8_t kFalling = 1;

// The same as fractions of 1. Values that mHLSRGB stores as floats are rounded to floats here too, but held in doubles,
// so that vectors hold the same pixels for every value.
struct SortedParts {
  double high[kPiece];
  double middle[kPiece];
  double low[kPiece];
  double third[kPiece];  // the hue of the highest channel, negative if the pixel's hue is below
  double delta[kPiece];
  double light[kPiece];
  double saturation[kPiece];
};

inline double Single(double value) {
  return static_cast<double>(static_cast<float>(value));
}

// Adding 1.5 * 2^52 leaves no bits for a fraction, and the processor rounds ties to even.
inline double Rounded(double value) {
  constexpr double kNoFraction = 6755399441055744.0;
  return (value + kNoFraction) - kNoFraction;
}

// Gray pixels have dividend 0, and their quotient must be 0. Any other divisor is at least 1 / 255.
inline double AtLeastTiny(double divisor) {
  return divisor < 0.001 ? 0.001 : divisor;
}

VANTORIUM_VECTOR_CLONES
void Sort(const std::uint8_t* pixels, std::size_t count, SortedBytes& sorted) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint8_t b = pixels[3 * i];
    const std::uint8_t g = pixels[3 * i + 1];
    const std::uint8_t r = pixels[3 * i + 2];
    const std::uint8_t more = std::max(r, g);
    const std::uint8_t less = std::min(r, g);
    const std::uint8_t high = std::max(more, b);
    const std::uint8_t redPlace = g < b;
    const std::uint8_t greenPlace = 2 + (b < r);
    const std::uint8_t bluePlace = 4 + (r < g);
    sorted.high[i] = high;
    sorted.middle[i] = std::max(less, std::min(more, b));
    sorted.low[i] = std::min(less, b);
    sorted.place[i] = r == high ? redPlace : g == high ? greenPlace : bluePlace;
  }
}

// One operation on floats, rounded to a float, gives the same result in single and double precision.
VANTORIUM_VECTOR_CLONES
void ToParts(const SortedBytes& sorted, SortedParts& parts) {
  for (std::size_t i = 0; i < kPiece; ++i) {
    const float high = static_cast<float>(sorted.high[i]) / 255.0F;
    const float low = static_cast<float>(sorted.low[i]) / 255.0F;
    const std::int32_t third = sorted.place[i] & 6;
    parts.high[i] = high;
    parts.middle[i] = static_cast<float>(sorted.middle[i]) / 255.0F;
    parts.low[i] = low;
    parts.light[i] = (high + low) / 2;
    parts.delta[i] = high - low;
    parts.third[i] = (sorted.place[i] & kFalling) != 0 ? -third : third;
  }
}

VANTORIUM_VECTOR_CLONES
void LightenParts(SortedParts& parts, double factor) {
  for (std::size_t i = 0; i < kPiece; ++i) {
    const double high = parts.high[i];
    const double low = parts.low[i];
    const double ofLight = 2 - high - low;
    const double ofDark = high + low;
    parts.saturation[i] = Single((high - low) / AtLeastTiny(parts.light[i] > 0.5 ? ofLight : ofDark));
    const double light = Single(parts.light[i] * factor);
    parts.light[i] = light > 1 ? 1.0 : light;
  }
}

// Stores the lowest channel of the result in `high`, which is no longer needed; the old `low` still is.
VANTORIUM_VECTOR_CLONES
void FindNewLow(SortedParts& parts) {
  for (std::size_t i = 0; i < kPiece; ++i) {
    const double light = parts.light[i];
    const double ofLight = light - parts.saturation[i] * (1 - light);
    const double ofDark = light * (1 - parts.saturation[i]);
    parts.high[i] = Single(light > 0.5 ? ofLight : ofDark);
  }
}

// The hue is rounded at its position on the circle; its distance from the highest channel's hue is what counts. Below
// that hue the signs are reversed: a negative hue plus the quotient rounds like the hue minus the quotient.
VANTORIUM_VECTOR_CLONES
void ToResult(SortedParts& parts) {
  for (std::size_t i = 0; i < kPiece; ++i) {
    const double third = parts.third[i];
    const double hue = Single(third + (parts.middle[i] - parts.low[i]) / AtLeastTiny(parts.delta[i]));
    const double min = parts.high[i];
    const double max = Single(2 * parts.light[i] - min);
    const double middle = Single((max - min) * (hue - third) + min);
    parts.high[i] = Rounded(max * 255.0);
    parts.middle[i] = Rounded(middle * 255.0);
    parts.low[i] = Rounded(min * 255.0);
  }
}

VANTORIUM_VECTOR_CLONES
void ToBytes(const double* parts, std::uint8_t* bytes) {
  for (std::size_t i = 0; i < kPiece; ++i) bytes[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(parts[i]));
}

VANTORIUM_VECTOR_CLONES
void PutBack(const SortedBytes& sorted, std::size_t count, std::uint8_t* pixels) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint8_t high = sorted.high[i];
    const bool falling = (sorted.place[i] & kFalling) != 0;
    const std::uint8_t before = falling ? sorted.middle[i] : sorted.low[i];  // the channel before the highest
    const std::uint8_t after = falling ? sorted.low[i] : sorted.middle[i];
    const int third = sorted.place[i] & 6;
    pixels[3 * i] = third == 0 ? before : third == 2 ? after : high;
    pixels[3 * i + 1] = third == 0 ? after : third == 2 ? high : before;
    pixels[3 * i + 2] = third == 0 ? high : third == 2 ? before : after;
  }
}

void LightenPiece(std::uint8_t* pixels, std::size_t count, double factor) {
  SortedBytes sorted = {};
  SortedParts parts;
  Sort(pixels, count, sorted);
  ToParts(sorted, parts);
  LightenParts(parts, factor);
  FindNewLow(parts);
  ToResult(parts);
  ToBytes(parts.high, sorted.high);
  ToBytes(parts.middle, sorted.middle);
  ToBytes(parts.low, sorted.low);
  PutBack(sorted, count, pixels);
}

}  // namespace

void Lighten(cDIBSection& dib, std::int32_t amount) {
  if (amount < -100 || amount > 100) {
    LightenLiteral(dib, amount);
    return;
  }
  const double factor = amount / 100.0 + 1.0;
  const auto width = static_cast<std::size_t>(dib.width());
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    for (std::size_t x = 0; x < width; x += kPiece) {
      LightenPiece(dib.Row(y) + 3 * x, std::min(kPiece, width - x), factor);
    }
  }
}

}  // namespace vantorium::image
