#include "image/jpeg/Color.h"

#ifdef __x86_64__
#include <cstring>

#include <emmintrin.h>
#endif

namespace vantorium::image::jpeg {
namespace {

constexpr int kMiddle = 128;
constexpr int kHalf = 1 << 15;

// The factors of blue and red chroma, with 16 bits behind the point.
constexpr int kBlueOfBlue = 116130;
constexpr int kGreenOfBlue = -22554;
constexpr int kGreenOfRed = -46802;
constexpr int kRedOfRed = 91881;

// What is added before sixteenths are cut off, in columns of even and of odd numbers: halves go down in one and up in
// the other.
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

// Three parts of the nearest sample and one of the next, down and across.
int Smooth(const ChromaRows& rows, Bias bias, std::size_t x, std::size_t last) {
  const auto down = [&](std::size_t column) { return 3 * rows.own[column] + rows.beside[column]; };
  return (3 * down(x / 2) + down(Beside(x, last)) + (x % 2 == 0 ? bias.even : bias.odd)) >> 4;
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

// Eight samples from an even column on, which is not the first.
__m128i EightSmooth(const ChromaRows& rows, Bias bias, std::size_t x) {
  const std::size_t left = x / 2 - 1;
  const __m128i down = _mm_add_epi16(Thrice(EightSamples(rows.own + left)), EightSamples(rows.beside + left));
  const __m128i near = Thrice(_mm_srli_si128(down, 2));
  const __m128i even = _mm_add_epi16(_mm_add_epi16(near, down), Eight(bias.even));
  const __m128i odd = _mm_add_epi16(_mm_add_epi16(near, _mm_srli_si128(down, 4)), Eight(bias.odd));
  return _mm_srli_epi16(_mm_unpacklo_epi16(even, odd), 4);
}

// The rounded product with a factor of less than a half.
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

// Four pixels of four bytes each, the last of which is 0.
void WriteWithoutFourth(__m128i pixels, std::uint8_t* bgr) {
  for (int i = 0; i < 2; ++i, pixels = _mm_srli_si128(pixels, 8), bgr += 6) {
    const auto two = static_cast<std::uint64_t>(_mm_cvtsi128_si64(pixels));
    const std::uint64_t bytes = (two & 0xFFFFFF) | (two >> 32 << 24);
    std::memcpy(bgr, &bytes, sizeof bytes);
  }
}

// Eight pixels, and two bytes behind them.
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
  WriteWithoutFourth(_mm_unpacklo_epi16(bg, r0), bgr);
  WriteWithoutFourth(_mm_unpackhi_epi16(bg, r0), bgr + 12);
}

#endif

struct FullChroma {
  const SampleRows& rows;

  void WriteOne(std::size_t x, std::uint8_t* bgr) const {
    WritePixel(rows.luminance[x], rows.blue.own[x], rows.red.own[x], bgr);
  }
#ifdef __x86_64__
  [[nodiscard]] static bool MayBeginEight(std::size_t) {
    return true;
  }
  void WriteEight(std::size_t x, std::uint8_t* bgr) const {
    WriteEightPixels(rows.luminance + x, EightSamples(rows.blue.own + x), EightSamples(rows.red.own + x), bgr);
  }
#endif
};

struct SmoothChroma {
  const SampleRows& rows;
  Bias bias;

  void WriteOne(std::size_t x, std::uint8_t* bgr) const {
    WritePixel(rows.luminance[x], Smooth(rows.blue, bias, x, rows.lastChroma),
               Smooth(rows.red, bias, x, rows.lastChroma), bgr);
  }
#ifdef __x86_64__
  [[nodiscard]] static bool MayBeginEight(std::size_t x) {
    return x % 2 == 0 && x > 0;
  }
  void WriteEight(std::size_t x, std::uint8_t* bgr) const {
    WriteEightPixels(rows.luminance + x, EightSmooth(rows.blue, bias, x), EightSmooth(rows.red, bias, x), bgr);
  }
#endif
};

template <typename Source>
void Write(const Source& source, std::size_t begin, std::size_t end, std::uint8_t* bgr) {
  for (std::size_t x = begin; x < end;) {
#ifdef __x86_64__
    // The bytes behind are those of a pixel that follows.
    if (x + 8 < end && Source::MayBeginEight(x)) {
      source.WriteEight(x, bgr + 3 * x);
      x += 8;
      continue;
    }
#endif
    source.WriteOne(x, bgr + 3 * x);
    ++x;
  }
}

}  // namespace

void WritePixels(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end, std::uint8_t* bgr) {
  switch (chroma) {
    case Chroma::None:
      for (std::size_t x = begin; x < end; ++x) std::fill_n(bgr + 3 * x, 3, rows.luminance[x]);
      break;
    case Chroma::Full:
      Write(FullChroma{rows}, begin, end, bgr);
      break;
    case Chroma::HalfWidth:
      Write(SmoothChroma{rows, {4, 8}}, begin, end, bgr);
      break;
    case Chroma::HalfBoth:
      Write(SmoothChroma{rows, {8, 7}}, begin, end, bgr);
      break;
  }
}

}  // namespace vantorium::image::jpeg
