#pragma once

#include "image/cDIBSection.h"

#include <memory>

namespace vantorium::image {

/// Returns `source` resized to a size in pixels, interpolated as by ResamplePlan. Returns null if a picture of that
/// size cannot be created or `source` is empty. Note the order: the height comes first.
[[nodiscard]] std::unique_ptr<cDIBSection> Resample(const cDIBSection& source, std::int32_t newHeight,
                                                    std::int32_t newWidth);

}  // namespace vantorium::image
