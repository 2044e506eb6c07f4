#pragma once

#include "image/NoiseStream.h"
#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium {

// What the filters of the same names have to equal byte for byte, written as plainly as their rules are told. They
// serve as the reference of the tests, and for amounts outside the stated ranges.

void GrayScaleLiteral(cDIBSection& dib);
void FadeLiteral(cDIBSection& dib, std::int32_t amount);
void LightenLiteral(cDIBSection& dib, std::int32_t amount);
void AddNoiseLiteral(cDIBSection& dib, std::int32_t amount, bool random, NoiseStream& stream);

}  // namespace vantorium
