#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Returns the numbered links of thumbnail page `page` to its neighbors, with "..." where there are more pages. Throws
/// RuntimeFailure TypeMismatch if the maximum number of links is not a number, Overflow if it does not fit 32 bits.
[[nodiscard]] std::string BuildDirectLinks(const RunState& run, std::int32_t page);

}  // namespace vantorium::generation
