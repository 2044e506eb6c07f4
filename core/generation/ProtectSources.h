#pragma once

#include "core/generation/RunContext.h"

namespace vantorium::generation {

/// Ends the run in failure, before its first picture is made, if it would overwrite a file that the gallery is made
/// from: a photograph, a backdrop, a link graphic or the project file. Files are compared by device and inode, so
/// another path to the same file is caught too. A file that would be copied onto itself is left to the copy, which
/// changes nothing.
[[nodiscard]] PhaseResult ProtectSources(const RunContext& context);

}  // namespace vantorium::generation
