#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantorium {

/// Where the slide show goes from a thumbnail page by itself: to the first image. Nothing when there is none that
/// starts so.
[[nodiscard]] std::optional<std::string> SlideShowStart(const RunState& run);

/// Where the slide show goes from the wrapper page of `image`. Nothing without a slide show, and where it stops. Throws
/// RuntimeFailure DivisionByZero as ThumbnailPageOfImage.
[[nodiscard]] std::optional<std::string> SlideAfter(const RunState& run, std::int32_t image);

}  // namespace vantorium
