#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Builds the wrapper page of one image: the image with its caption, description, user code, links and the next step of
/// the slide show. Throws whatever its tags and links throw.
[[nodiscard]] std::string BuildWrapperPage(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
