#pragma once

#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium {

/// Lays `source` over the bottom left corner of `target`. `key` is a color, 0x00BBGGRR.
///
/// With `alpha` below 100 each pixel of the source that is not of the key's color is blended in: `alpha` hundredths of
/// it and the rest of the target's pixel, rounded to nearest, ties to even. With 100 and above it turns round: just the
/// pixels of the key's complement are copied.
///
/// False, with the target untouched, when the source is wider or higher than the target or one of them is empty.
[[nodiscard]] bool TransparentCopy(const cDIBSection& source, cDIBSection& target, std::uint32_t key,
                                   std::uint8_t alpha);

}  // namespace vantorium
