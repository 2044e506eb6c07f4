#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantorium::generation {

/// Returns the target to which a thumbnail page advances by itself: the first image. Returns nullopt unless a slide
/// show starts automatically from a thumbnail page.
[[nodiscard]] std::optional<std::string> SlideShowStart(const RunState& run);

/// Returns where the slide show goes from the wrapper page of `image`, or nullopt if there is no slide show or it stops
/// there. Throws RuntimeFailure DivisionByZero like ThumbnailPageOfImage.
[[nodiscard]] std::optional<std::string> SlideAfter(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
