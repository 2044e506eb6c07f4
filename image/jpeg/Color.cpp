#include "image/jpeg/Color.h"

#ifdef __x86_64__
#include <cstring>

#include <emmintrin.h>
#endif

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

std::uint8_t Byte(int value) {
  return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

void WritePixel(int luminance, int blue, int red, std::uint8_t* bgr) {
  blue -= kMiddle;
  red -= kMiddle;
  bgr[0] = Byte(luminance + ((kBlueOfBlue * blue + kHalf) >> 16));
  bgr[1] = Byte(luminance + ((kGreenOfBlue * blue + kGreenOfRed * red + kHalf) >> 16));
  bgr[2] = Byte(luminance + ((kRedOfRed * red + kHalf) >> 16));
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

#ifdef __x86_64__

__m128i Eight(int value) {
  return _mm_set1_epi16(static_cast<std::int16_t>(value));
}

__m128i EightSamples(const std::uint8_t* samples) {
  return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(samples)), _mm_setzero_si128());
}

__m128i Thrice(__m128i values) {
  return _mm_add_epi16(values, _mm_add_epi16(values, values));
}

// Eight samples that begin at an even column other than the first.
__m128i EightSmooth(const ChromaRows& rows, Bias bias, std::size_t x) {
  const std::size_t left = x / 2 - 1;
  const __m128i vertical = _mm_add_epi16(Thrice(EightSamples(rows.own + left)), EightSamples(rows.beside + left));
  const __m128i near = Thrice(_mm_srli_si128(vertical, 2));
  const __m128i even = _mm_add_epi16(_mm_add_epi16(near, vertical), Eight(bias.even));
  const __m128i odd = _mm_add_epi16(_mm_add_epi16(near, _mm_srli_si128(vertical, 4)), Eight(bias.odd));
  return _mm_srli_epi16(_mm_unpacklo_epi16(even, odd), 4);
}

// The rounded product with a factor whose absolute value is less than a half.
__m128i Part(__m128i values, int factor) {
  const __m128i twice = _mm_mulhi_epi16(_mm_add_epi16(values, values), Eight(factor));
  return _mm_srai_epi16(_mm_add_epi16(twice, Eight(1)), 1);
}

__m128i GreenPart(__m128i blue, __m128i red) {
  const __m128i factors = _mm_set1_epi32(((kGreenOfRed + 65536) << 16) | (kGreenOfBlue & 0xFFFF));
  const auto part = [&](__m128i pairs) {
    return _mm_srai_epi32(_mm_add_epi32(_mm_madd_epi16(pairs, factors), _mm_set1_epi32(kHalf)), 16);
  };
  const __m128i sums = _mm_packs_epi32(part(_mm_unpacklo_epi16(blue, red)), part(_mm_unpackhi_epi16(blue, red)));
  return _mm_sub_epi16(sums, red);
}

// Takes four pixels of four bytes each, the last of which is 0, and writes one byte too many.
void WriteFourPixels(__m128i pixels, std::uint8_t* bgr) {
  for (int i = 0; i < 4; ++i, pixels = _mm_srli_si128(pixels, 4), bgr += 3) {
    const int pixel = _mm_cvtsi128_si32(pixels);
    std::memcpy(bgr, &pixel, sizeof pixel);
  }
}

// Writes eight pixels and the byte that follows them.
void WriteEightPixels(const std::uint8_t* samples, __m128i blue, __m128i red, std::uint8_t* bgr) {
  const __m128i luminance = EightSamples(samples);
  blue = _mm_sub_epi16(blue, Eight(kMiddle));
  red = _mm_sub_epi16(red, Eight(kMiddle));
  const __m128i b = _mm_add_epi16(_mm_add_epi16(blue, blue), Part(blue, kBlueOfBlue - 131072));
  const __m128i r = _mm_add_epi16(red, Part(red, kRedOfRed - 65536));
  const auto bytes = [&](__m128i part) {
    const __m128i sum = _mm_add_epi16(luminance, part);
    return _mm_packus_epi16(sum, sum);
  };
  const __m128i bg = _mm_unpacklo_epi8(bytes(b), bytes(GreenPart(blue, red)));
  const __m128i r0 = _mm_unpacklo_epi8(bytes(r), _mm_setzero_si128());
  WriteFourPixels(_mm_unpacklo_epi16(bg, r0), bgr);
  WriteFourPixels(_mm_unpackhi_epi16(bg, r0), bgr + 12);
}

// Writes eight pixels if these can be made at once.
bool WriteEight(const SampleRows& rows, Bias bias, std::size_t x, std::size_t end, std::uint8_t* bgr) {
  // The byte that follows the eight pixels belongs to a pixel that is written next.
  if (x + 8 >= end || (rows.columns.half && (x == 0 || x % 2 != 0))) return false;
  const auto samples = [&](const ChromaRows& chroma) {
    return rows.columns.half ? EightSmooth(chroma, bias, x) : EightSamples(chroma.own + x);
  };
  WriteEightPixels(rows.luminance + x, samples(rows.blue), samples(rows.red), bgr);
  return true;
}

#else

bool WriteEight(const SampleRows&, Bias, std::size_t, std::size_t, std::uint8_t*) {
  return false;
}

#endif

void WriteOne(const SampleRows& rows, Bias bias, std::size_t x, std::uint8_t* bgr) {
  const auto sample = [&](const ChromaRows& chroma) { return Smooth(chroma, rows.columns, bias, x); };
  WritePixel(rows.luminance[x], sample(rows.blue), sample(rows.red), bgr);
}

}  // namespace

void WritePixels(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end, std::uint8_t* bgr) {
  if (chroma == Chroma::None) {
    for (std::size_t x = begin; x < end; ++x) std::fill_n(bgr + 3 * x, 3, rows.luminance[x]);
    return;
  }
  const Bias bias = BiasOf(chroma);
  for (std::size_t x = begin; x < end;) {
    if (WriteEight(rows, bias, x, end, bgr + 3 * x)) {
      x += 8;
    } else {
      WriteOne(rows, bias, x, bgr + 3 * x);
      ++x;
    }
  }
}

}  // namespace vantorium::image::jpeg
