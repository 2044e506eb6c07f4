#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Returns the line of a wrapper page that shows the image, with caption and description around it. The image's size is
/// written as the user typed it.
[[nodiscard]] std::string WrapperContent(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
