#pragma once

#include <cstdint>

namespace vantorium::image {

// Hue, lightness and saturation of a color. All are floats. Hue is in sixths of the color circle, -1 to 5; lightness
// and saturation are 0 to 1.

[[nodiscard]] float Maximum(float a, float b, float c);
[[nodiscard]] float Minimum(float a, float b, float c);

/// `r`, `g`, `b` are 0 to 255.
void RGBToHLS(std::int32_t r, std::int32_t g, std::int32_t b, float& H, float& S, float& L);

/// Throws RuntimeFailure Overflow if a result does not fit in its integer.
void HLSToRGB(float H, float S, float L, std::int32_t& r, std::int32_t& g, std::int32_t& b);

}  // namespace vantorium::image
