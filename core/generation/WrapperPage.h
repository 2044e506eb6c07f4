#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// The wrapper page of one image: the image with caption, description, code of the user and links, and the step of the
/// slide show. Throws what its tags and links throw.
[[nodiscard]] std::string BuildWrapperPage(const RunState& run, std::int32_t image);

}  // namespace vantorium
