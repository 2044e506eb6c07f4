#pragma once

#include "core/generation/RunState.h"

#include <string>

namespace vantorium {

/// The page that a visitor opens: the frames of the gallery, in the single frame layout one. Throws RuntimeFailure
/// IndexOutOfBounds without an image where the first is needed.
[[nodiscard]] std::string BuildIndexPage(const RunState& run);

}  // namespace vantorium
