#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

/// Ends the run in failure, before its first picture is made, when a file that it is to write exists and is one that
/// the gallery is made from: a photograph, a backdrop, a link graphic or the project file. Files are told by device and
/// number, so another path to the same file is found out too. A file that would be copied onto itself is left to the
/// copy, which changes nothing.
[[nodiscard]] PhaseResult ProtectSources(const RunContext& context);

}  // namespace vantorium
