#pragma once

#include "core/Project.h"
#include "core/generation/RunEnd.h"
#include "core/generation/RunEnvironment.h"

namespace vantorium::generation {

/// Performs one run: takes the project through the phases that turn it into files. Returns Success, Failure or
/// Cancelled. Whatever was written stays. The project must not change during the run.
[[nodiscard]] RunEnd GenerateGallery(core::Project& project, const RunOrder& order, const RunEnvironment& environment);

}  // namespace vantorium::generation
