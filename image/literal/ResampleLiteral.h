#pragma once

#include "image/cDIBSection.h"

#include <cstdint>
#include <memory>

namespace vantorium::image::literal {

/// A straightforward version of Resample, which must produce the same bytes. The reference for tests.
[[nodiscard]] std::unique_ptr<cDIBSection> ResampleLiteral(const cDIBSection& source, std::int32_t newHeight,
                                                           std::int32_t newWidth);

}  // namespace vantorium::image::literal
