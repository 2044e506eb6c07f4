#pragma once

#include "core/generation/RunContext.h"
#include "core/generation/changes/KnownFiles.h"

namespace vantorium::generation {

/// Tells the user which files of its earlier runs the gallery, or the folder that was sent, does not use any more.
/// Removes them first if the order says so. Leaves alone, and does not name, what is not as a run left it, what another
/// gallery in the same folder has used, and what may be a file that is in use under another name: a photograph of the
/// project, or on a server one whose name differs only in case. Returns Cancelled if the user cancels.
[[nodiscard]] PhaseResult TellUnusedFiles(const RunContext& context, KnownFiles& known);

}  // namespace vantorium::generation
