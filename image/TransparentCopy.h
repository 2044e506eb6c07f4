#pragma once

#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium::image {

// Part of the module's interface; the program itself does not call it.

/// Copies `source` over the bottom left corner of `target`. `key` is a color, 0x00BBGGRR.
///
/// With `alpha` below 100, each source pixel that is not of color `key` is blended in: `alpha` percent of it and the
/// rest of the target's pixel, rounded to nearest, ties to even. With 100 and above, only the pixels of the complement
/// of `key` are copied.
///
/// Returns false, leaving the target unchanged, if the source is wider or higher than the target or either of them is
/// empty.
[[nodiscard]] bool TransparentCopy(const cDIBSection& source, cDIBSection& target, std::uint32_t key,
                                   std::uint8_t alpha);

}  // namespace vantorium::image
