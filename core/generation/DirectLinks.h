#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// The numbered links of thumbnail page `page` to its neighbours, with "..." where more follow. Throws RuntimeFailure
/// TypeMismatch when the greatest number of links is no number, Overflow when it does not fit 32 bits.
[[nodiscard]] std::string BuildDirectLinks(const RunState& run, std::int32_t page);

}  // namespace vantorium
