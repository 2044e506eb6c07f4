#pragma once

#include "image/cDIBSection.h"

#include <memory>

namespace vantorium {

/// `source` at another size, in pixels: the interpolation of ResamplePlan. Null when a picture of that size can't be
/// made, or when `source` is empty. Note the order: the height comes first.
[[nodiscard]] std::unique_ptr<cDIBSection> Resample(const cDIBSection& source, std::int32_t newHeight,
                                                    std::int32_t newWidth);

}  // namespace vantorium
