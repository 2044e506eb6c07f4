#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

// The phases of a run that goes to a server. A run of another mode passes them by.

/// Connects, logs in and changes to the base directory.
[[nodiscard]] PhaseResult OpenServerSession(const RunContext& context);

/// Mode Upload: counts the folder, sends it, and ends the run.
[[nodiscard]] PhaseResult UploadFolderAndEnd(const RunContext& context);

}  // namespace vantorium
