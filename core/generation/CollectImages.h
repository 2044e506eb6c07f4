#pragma once

#include "core/generation/RunContext.h"

namespace vantorium::generation {

/// Fills the run's RunInfo with the name, time and sizes of every image, reading only file headers. Values that cannot
/// be determined stay 0.
[[nodiscard]] PhaseResult CollectImages(const RunContext& context);

}  // namespace vantorium::generation
