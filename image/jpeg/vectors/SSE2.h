#pragma once

#include "image/jpeg/vectors/Types.h"

#include <bit>
#include <cstring>

#include <emmintrin.h>

namespace vantorium::image::jpeg::sse2 {

inline __m128i Raw(Shorts vector) {
  return std::bit_cast<__m128i>(vector);
}
inline __m128i Raw(Ints vector) {
  return std::bit_cast<__m128i>(vector);
}
inline Shorts ToShorts(__m128i vector) {
  return std::bit_cast<Shorts>(vector);
}
inline Ints ToInts(__m128i vector) {
  return std::bit_cast<Ints>(vector);
}
inline __m128i ToBytes(Shorts vector) {
  return _mm_packus_epi16(Raw(vector), Raw(vector));
}
// Takes pixels of four bytes each, the last of which is 0, and writes one byte too many.
inline void StoreFourPixels(__m128i pixels, std::uint8_t* bgr) {
  for (int i = 0; i < 4; ++i, pixels = _mm_srli_si128(pixels, 4), bgr += 3) {
    const int pixel = _mm_cvtsi128_si32(pixels);
    std::memcpy(bgr, &pixel, sizeof pixel);
  }
}

[[nodiscard]] inline Shorts Load(const std::int16_t* values) {
  return ToShorts(_mm_load_si128(reinterpret_cast<const __m128i*>(values)));
}
inline void Store(Shorts vector, std::int16_t* values) {
  _mm_store_si128(reinterpret_cast<__m128i*>(values), Raw(vector));
}
[[nodiscard]] inline Shorts LoadSamples(const std::uint8_t* samples) {
  const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(samples));
  return ToShorts(_mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
}
inline void StoreSamples(Shorts vector, std::uint8_t* samples) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(samples), ToBytes(vector));
}
inline void StorePixels(Shorts blue, Shorts green, Shorts red, std::uint8_t* bgr) {
  const __m128i blueGreen = _mm_unpacklo_epi8(ToBytes(blue), ToBytes(green));
  const __m128i redZero = _mm_unpacklo_epi8(ToBytes(red), _mm_setzero_si128());
  StoreFourPixels(_mm_unpacklo_epi16(blueGreen, redZero), bgr);
  StoreFourPixels(_mm_unpackhi_epi16(blueGreen, redZero), bgr + 12);
}

[[nodiscard]] inline Ints SumsOfProducts(Shorts a, Shorts b) {
  return ToInts(_mm_madd_epi16(Raw(a), Raw(b)));
}
[[nodiscard]] inline Shorts UpperHalvesOfTwice(Shorts a, Shorts b) {
  return ToShorts(_mm_mulhi_epi16(Raw(a + a), Raw(b)));
}
[[nodiscard]] inline Shorts Narrowed(Ints first, Ints last) {
  return ToShorts(_mm_packs_epi32(Raw(first), Raw(last)));
}

template <int pair>
[[nodiscard]] inline Shorts Repeated(Shorts vector) {
  return ToShorts(_mm_shuffle_epi32(Raw(vector), _MM_SHUFFLE(pair, pair, pair, pair)));
}
[[nodiscard]] inline Ints Reversed(Ints vector) {
  return ToInts(_mm_shuffle_epi32(Raw(vector), _MM_SHUFFLE(0, 1, 2, 3)));
}
template <int count>
[[nodiscard]] inline Shorts Without(Shorts vector) {
  return ToShorts(_mm_srli_si128(Raw(vector), 2 * count));
}
[[nodiscard]] inline Shorts InterleavedFirst(Shorts a, Shorts b) {
  return ToShorts(_mm_unpacklo_epi16(Raw(a), Raw(b)));
}
[[nodiscard]] inline Shorts InterleavedLast(Shorts a, Shorts b) {
  return ToShorts(_mm_unpackhi_epi16(Raw(a), Raw(b)));
}

}  // namespace vantorium::image::jpeg::sse2
