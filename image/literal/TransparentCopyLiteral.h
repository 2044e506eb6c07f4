#pragma once

#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium::image::literal {

/// A straightforward version of TransparentCopy, which must produce the same bytes. The reference for tests.
[[nodiscard]] bool TransparentCopyLiteral(const cDIBSection& source, cDIBSection& target, std::uint32_t key,
                                          std::uint8_t alpha);

}  // namespace vantorium::image::literal
