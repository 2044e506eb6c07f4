#pragma once

#include "image/NoiseStream.h"
#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium::image {

// The filters. Each changes a picture in place, in one pass, and does not touch the padding of the rows. The picture
// must not be empty. Throws RuntimeFailure Overflow if a byte would leave 0 to 255, which cannot happen for amounts in
// the stated range.

/// Sets all three bytes of each pixel to its luminance.
void GrayScale(cDIBSection& dib);

/// Scales each byte towards black: 255 leaves it unchanged, 0 makes it black. `amount` is 0 to 255.
void Fade(cDIBSection& dib, std::int32_t amount);

/// Scales the lightness of each pixel by 1 + amount / 100. `amount` is -100 to 100. 0 is not an exact copy: converting
/// to hue and lightness and back rounds.
void Lighten(cDIBSection& dib, std::int32_t amount);

/// Adds a random offset of up to about 64 * amount / 100, in either direction, to each byte. With `random`, `amount`
/// percent of the pixels are left unchanged, so 100 changes nothing. `amount` is 0 to 100. Each call is one pass of
/// `stream`.
void AddNoise(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream);

// Part of the module's interface; the program itself does not call it.

/// Fills the picture with random pixels: gray, or else with independent red and green and no blue. One pass of
/// `stream`.
void RandomiseBits(cDIBSection& dib, bool gray, NoiseStream& stream);

}  // namespace vantorium::image
