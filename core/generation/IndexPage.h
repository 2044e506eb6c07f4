#pragma once

#include "core/generation/RunState.h"

#include <string>

namespace vantorium::generation {

/// Builds the page that a visitor opens: the two frames of the gallery, or one in the single-frame layout. Throws
/// RuntimeFailure IndexOutOfBounds if it needs the first image and there is none.
[[nodiscard]] std::string BuildIndexPage(const RunState& run);

}  // namespace vantorium::generation
