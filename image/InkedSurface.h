#pragma once

#include "image/PangoHandles.h"
#include "image/TextMask.h"

#include <cstdint>

namespace vantorium::image {

/// Creates a surface with one bit per pixel, all clear. Drawing on it has no effect if a side is below 1 or too large;
/// if a side is too large it is in an error state.
[[nodiscard]] SurfaceHandle MakeOneBitSurface(std::int32_t width, std::int32_t height);

/// Returns the set pixels of a one-bit surface as a mask of their bounding box.
[[nodiscard]] TextMask InkOf(cairo_surface_t* surface);

}  // namespace vantorium::image
