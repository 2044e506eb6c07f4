#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

/// Copies the backdrops and then the page link graphics that the project has into the images folder, under their fixed
/// names. A graphic without a folder is looked for beside the project file.
[[nodiscard]] PhaseResult CopyBackdrops(const RunContext& context);
[[nodiscard]] PhaseResult CopyLinkGraphics(const RunContext& context);

}  // namespace vantorium
