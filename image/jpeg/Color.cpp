#include "image/jpeg/Color.h"

#include "image/jpeg/Vectors.h"

namespace vantorium::image::jpeg {
namespace {

constexpr int kMiddle = 128;
constexpr int kHalf = 1 << 15;

// The factors of blue and red chroma, with 16 fractional bits.
constexpr int kBlueOfBlue = 116130;
constexpr int kGreenOfBlue = -22554;
constexpr int kGreenOfRed = -46802;
constexpr int kRedOfRed = 91881;

// Added to a sum of sixteenths before these are cut off, in even and in odd columns. libjpeg-turbo rounds halves down
// in one and up in the other.
struct Bias {
  int even;
  int odd;
};

void WriteColor(int luminance, int blue, int red, std::uint8_t* bgr) {
  blue -= kMiddle;
  red -= kMiddle;
  bgr[0] = ToSample(luminance + ((kBlueOfBlue * blue + kHalf) >> 16));
  bgr[1] = ToSample(luminance + ((kGreenOfBlue * blue + kGreenOfRed * red + kHalf) >> 16));
  bgr[2] = ToSample(luminance + ((kRedOfRed * red + kHalf) >> 16));
}

Bias BiasOf(Chroma chroma) {
  return chroma == Chroma::HalfWidth ? Bias{4, 8} : Bias{8, 7};
}

// Three parts of the nearest sample and one of the next, vertically and horizontally. Where both are the same sample,
// the result is this sample.
int Smooth(const ChromaRows& rows, const ChromaAxis& columns, Bias bias, std::size_t x) {
  const auto vertical = [&](std::size_t column) { return 3 * rows.own[column] + rows.beside[column]; };
  const int sum = 3 * vertical(columns.Own(x)) + vertical(columns.Beside(x));
  return (sum + (x % 2 == 0 ? bias.even : bias.odd)) >> 4;
}

void WritePixel(const SampleRows& rows, Bias bias, std::size_t x, std::uint8_t* bgr) {
  const auto chroma = [&](const ChromaRows& samples) { return Smooth(samples, rows.columns, bias, x); };
  WriteColor(rows.luminance[x], chroma(rows.blue), chroma(rows.red), bgr);
}

Shorts Thrice(Shorts values) {
  return values + values + values;
}

// Eight samples that begin at an even column other than the first.
Shorts EightSmooth(const ChromaRows& rows, Bias bias, std::size_t x) {
  const std::size_t left = x / 2 - 1;
  const Shorts vertical = Thrice(LoadSamples(rows.own + left)) + LoadSamples(rows.beside + left);
  const Shorts near = Thrice(Without<1>(vertical));
  const Shorts even = near + vertical + EightTimes(bias.even);
  const Shorts odd = near + Without<2>(vertical) + EightTimes(bias.odd);
  return InterleavedFirst(even, odd) >> 4;
}

// The rounded product with a factor whose absolute value is less than a half.
Shorts Part(Shorts values, int factor) {
  return (UpperHalvesOfTwice(values, EightTimes(factor)) + EightTimes(1)) >> 1;
}

Shorts GreenPart(Shorts blue, Shorts red) {
  const Shorts factors = InterleavedFirst(EightTimes(kGreenOfBlue), EightTimes(kGreenOfRed + 65536));
  const auto part = [&](Shorts pairs) { return (SumsOfProducts(pairs, factors) + FourTimes(kHalf)) >> 16; };
  return Narrowed(part(InterleavedFirst(blue, red)), part(InterleavedLast(blue, red))) - red;
}

// Writes eight pixels and the byte that follows them.
void WriteEightPixels(const SampleRows& rows, Bias bias, std::size_t x, std::uint8_t* bgr) {
  const auto chroma = [&](const ChromaRows& samples) {
    return (rows.columns.half ? EightSmooth(samples, bias, x) : LoadSamples(samples.own + x)) - EightTimes(kMiddle);
  };
  const Shorts luminance = LoadSamples(rows.luminance + x);
  const Shorts blue = chroma(rows.blue);
  const Shorts red = chroma(rows.red);
  StorePixels(luminance + blue + blue + Part(blue, kBlueOfBlue - 131072), luminance + GreenPart(blue, red),
              luminance + red + Part(red, kRedOfRed - 65536), bgr);
}

// The byte that follows the eight pixels must belong to a pixel that is written next.
bool CanWriteEight(const ChromaAxis& columns, std::size_t x, std::size_t end) {
  return x + 8 < end && !(columns.half && (x == 0 || x % 2 != 0));
}

}  // namespace

void WritePixels(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end, std::uint8_t* bgr) {
  if (chroma == Chroma::None) {
    for (std::size_t x = begin; x < end; ++x) std::fill_n(bgr + 3 * x, 3, rows.luminance[x]);
    return;
  }
  const Bias bias = BiasOf(chroma);
  for (std::size_t x = begin; x < end;) {
    if (CanWriteEight(rows.columns, x, end)) {
      WriteEightPixels(rows, bias, x, bgr + 3 * x);
      x += 8;
    } else {
      WritePixel(rows, bias, x, bgr + 3 * x);
      ++x;
    }
  }
}

}  // namespace vantorium::image::jpeg
