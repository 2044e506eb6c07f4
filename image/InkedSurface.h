#pragma once

#include "image/PangoHandles.h"
#include "image/TextMask.h"

#include <cstdint>

namespace vantorium {

/// A surface of one bit a pixel, all clear. In an error state, and drawing on it has no effect, when a side is below 1
/// or too large.
[[nodiscard]] SurfaceHandle MakeOneBitSurface(std::int32_t width, std::int32_t height);

/// The set pixels of a one-bit surface, as a mask no larger than needed.
[[nodiscard]] TextMask InkOf(cairo_surface_t* surface);

}  // namespace vantorium
