#pragma once

#include "image/cDIBSection.h"

#include <cstdint>

namespace vantorium {

/// What TransparentCopy has to equal byte for byte, written as plainly as the rule is told. Kept as the reference of
/// the tests.
[[nodiscard]] bool TransparentCopyLiteral(const cDIBSection& source, cDIBSection& target, std::uint32_t key,
                                          std::uint8_t alpha);

}  // namespace vantorium
