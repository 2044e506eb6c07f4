#pragma once

#include "image/NoiseStream.h"
#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium::image {

// Straightforward versions of the filters, which must produce the same bytes. Tests use them as the reference; the
// filters call them for amounts outside the stated ranges.

void GrayScaleLiteral(cDIBSection& dib);
void FadeLiteral(cDIBSection& dib, std::int32_t amount);
void LightenLiteral(cDIBSection& dib, std::int32_t amount);
void AddNoiseLiteral(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream);

}  // namespace vantorium::image
