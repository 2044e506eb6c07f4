#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

// The phases of a run that sends to a server. In other modes they do nothing.

/// Connects, logs in and changes to the base directory.
[[nodiscard]] PhaseResult OpenServerSession(const RunContext& context);

/// In mode Upload, counts the contents of the folder, sends them, and ends the run.
[[nodiscard]] PhaseResult UploadFolderAndEnd(const RunContext& context);

}  // namespace vantorium
