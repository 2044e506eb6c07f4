#pragma once

#include "image/NoiseStream.h"
#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium {

// The filters: each changes a picture in place, in one pass, and leaves the padding of its rows alone. The picture must
// not be empty. A byte that would leave 0 to 255, which no amount in the stated range brings about, is RuntimeFailure
// Overflow.

/// Gives all three bytes of each pixel its luminance.
void GrayScale(cDIBSection& dib);

/// Scales each byte towards black: 255 leaves it as it is, 0 makes it black. `amount` is 0 to 255.
void Fade(cDIBSection& dib, std::int32_t amount);

/// Scales the lightness of each pixel by 1 + amount / 100. `amount` is -100 to 100. 0 is not quite a copy: the way to
/// hue and lightness and back rounds.
void Lighten(cDIBSection& dib, std::int32_t amount);

/// Moves each byte by a random offset of up to about 64 * amount / 100 either way. With `random` a share of `amount`
/// hundredths of the pixels is left alone, so that 100 changes nothing. `amount` is 0 to 100. Each call is a pass of
/// `stream`.
void AddNoise(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream);

/// Fills the picture with random pixels: grey ones, or with red and green of their own and no blue. A pass of `stream`.
void RandomiseBits(cDIBSection& dib, bool gray, NoiseStream& stream);

}  // namespace vantorium
