#pragma once

#include "image/jpeg/vectors/Types.h"

#include <algorithm>

/// Defines the operations on vectors; those for special processors equal these.
namespace vantorium::image::jpeg::plain {

/// Loads from an address that is a multiple of 16.
[[nodiscard]] inline Shorts Load(const std::int16_t* values) {
  Shorts vector = {};
  for (int i = 0; i < 8; ++i) vector[i] = values[i];
  return vector;
}
/// Stores at an address that is a multiple of 16.
inline void Store(Shorts vector, std::int16_t* values) {
  for (int i = 0; i < 8; ++i) values[i] = vector[i];
}
[[nodiscard]] inline Shorts LoadSamples(const std::uint8_t* samples) {
  Shorts vector = {};
  for (int i = 0; i < 8; ++i) vector[i] = samples[i];
  return vector;
}
/// Clamps the lanes to the range of a sample.
inline void StoreSamples(Shorts vector, std::uint8_t* samples) {
  for (int i = 0; i < 8; ++i) samples[i] = ToSample(vector[i]);
}
/// Stores eight pixels of three bytes. Clamps the lanes to the range of a sample. The byte that follows the pixels must
/// be writable; what it holds then is undefined.
inline void StorePixels(Shorts blue, Shorts green, Shorts red, std::uint8_t* bgr) {
  for (int i = 0; i < 8; ++i) {
    for (const int value : {blue[i], green[i], red[i]}) *bgr++ = ToSample(value);
  }
}

/// Multiplies the lanes and adds the products of each even lane and the next one. The lanes of `a` are at least -32767.
[[nodiscard]] inline Ints SumsOfProducts(Shorts a, Shorts b) {
  Ints sums = {};
  for (int i = 0; i < 4; ++i) sums[i] = a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1];
  return sums;
}
/// Multiplies the lanes and returns the upper halves of twice the products. The lanes of `a` are at least -16384 and
/// less than 16384.
[[nodiscard]] inline Shorts UpperHalvesOfTwice(Shorts a, Shorts b) {
  Shorts halves = {};
  for (int i = 0; i < 8; ++i) halves[i] = static_cast<std::int16_t>(2 * a[i] * b[i] >> 16);
  return halves;
}
/// Clamps the lanes to 16 bits.
[[nodiscard]] inline Shorts Narrowed(Ints first, Ints last) {
  const auto narrow = [](int value) { return static_cast<std::int16_t>(std::clamp(value, -32768, 32767)); };
  Shorts vector = {};
  for (int i = 0; i < 4; ++i) vector[i] = narrow(first[i]);
  for (int i = 0; i < 4; ++i) vector[4 + i] = narrow(last[i]);
  return vector;
}

/// Repeats the lanes 2 * `pair` and 2 * `pair` + 1 four times.
template <int pair>
[[nodiscard]] inline Shorts Repeated(Shorts vector) {
  Shorts repeated = {};
  for (int i = 0; i < 8; ++i) repeated[i] = vector[2 * pair + i % 2];
  return repeated;
}
[[nodiscard]] inline Ints Reversed(Ints vector) {
  return Ints{vector[3], vector[2], vector[1], vector[0]};
}
/// Drops the first `count` lanes and appends zeros.
template <int count>
[[nodiscard]] inline Shorts Without(Shorts vector) {
  Shorts rest = {};
  for (int i = 0; i + count < 8; ++i) rest[i] = vector[i + count];
  return rest;
}
/// Alternates the first four lanes of both.
[[nodiscard]] inline Shorts InterleavedFirst(Shorts a, Shorts b) {
  return Shorts{a[0], b[0], a[1], b[1], a[2], b[2], a[3], b[3]};
}
/// Alternates the last four lanes of both.
[[nodiscard]] inline Shorts InterleavedLast(Shorts a, Shorts b) {
  return Shorts{a[4], b[4], a[5], b[5], a[6], b[6], a[7], b[7]};
}

}  // namespace vantorium::image::jpeg::plain
