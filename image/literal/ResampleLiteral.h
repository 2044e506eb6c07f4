#pragma once

#include "image/cDIBSection.h"

#include <cstdint>
#include <memory>

namespace vantorium {

/// What Resample has to equal byte for byte, written as plainly as the rule is told. Kept as the reference of the
/// tests.
[[nodiscard]] std::unique_ptr<cDIBSection> ResampleLiteral(const cDIBSection& source, std::int32_t newHeight,
                                                           std::int32_t newWidth);

}  // namespace vantorium
