#pragma once

#include "image/jpeg/vectors/Types.h"

#include <arm_neon.h>

namespace vantorium::image::jpeg::neon {

[[nodiscard]] inline Shorts Load(const std::int16_t* values) {
  return vld1q_s16(values);
}
inline void Store(Shorts vector, std::int16_t* values) {
  vst1q_s16(values, vector);
}
[[nodiscard]] inline Shorts LoadSamples(const std::uint8_t* samples) {
  return vreinterpretq_s16_u16(vmovl_u8(vld1_u8(samples)));
}
inline void StoreSamples(Shorts vector, std::uint8_t* samples) {
  vst1_u8(samples, vqmovun_s16(vector));
}
inline void StorePixels(Shorts blue, Shorts green, Shorts red, std::uint8_t* bgr) {
  vst3_u8(bgr, {{vqmovun_s16(blue), vqmovun_s16(green), vqmovun_s16(red)}});
}

[[nodiscard]] inline Ints SumsOfProducts(Shorts a, Shorts b) {
  return vpaddq_s32(vmull_s16(vget_low_s16(a), vget_low_s16(b)), vmull_high_s16(a, b));
}
[[nodiscard]] inline Shorts UpperHalvesOfTwice(Shorts a, Shorts b) {
  return vqdmulhq_s16(a, b);
}
[[nodiscard]] inline Shorts Narrowed(Ints first, Ints last) {
  return vqmovn_high_s32(vqmovn_s32(first), last);
}

template <int pair>
[[nodiscard]] inline Shorts Repeated(Shorts vector) {
  return vreinterpretq_s16_s32(vdupq_laneq_s32(vreinterpretq_s32_s16(vector), pair));
}
[[nodiscard]] inline Ints Reversed(Ints vector) {
  const int32x4_t swapped = vrev64q_s32(vector);
  return vextq_s32(swapped, swapped, 2);
}
template <int count>
[[nodiscard]] inline Shorts Without(Shorts vector) {
  return vextq_s16(vector, vdupq_n_s16(0), count);
}
[[nodiscard]] inline Shorts InterleavedFirst(Shorts a, Shorts b) {
  return vzip1q_s16(a, b);
}
[[nodiscard]] inline Shorts InterleavedLast(Shorts a, Shorts b) {
  return vzip2q_s16(a, b);
}

}  // namespace vantorium::image::jpeg::neon
