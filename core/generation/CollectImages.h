#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

/// Fills the run's RunInfo: name, time and sizes of every image, from file headers only. What can't be found out keeps
/// 0.
[[nodiscard]] PhaseResult CollectImages(const RunContext& context);

}  // namespace vantorium
