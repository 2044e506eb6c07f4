#pragma once

#include "core/generation/RunContext.h"

namespace vantorium::generation {

// The phases of a run that sends to a server.

/// Connects, logs in and changes to the base directory.
[[nodiscard]] PhaseResult OpenServerSession(const RunContext& context);

/// Counts the contents of the folder, then sends them.
[[nodiscard]] PhaseResult SendFolder(const RunContext& context);

}  // namespace vantorium::generation
