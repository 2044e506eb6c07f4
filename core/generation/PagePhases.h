#pragma once

#include "core/generation/RunContext.h"

namespace vantorium::generation {

// The page phases of a run: each page is built, then stored at the target.

[[nodiscard]] PhaseResult WriteIndexPage(const RunContext& context);
[[nodiscard]] PhaseResult WriteThumbnailPages(const RunContext& context);
[[nodiscard]] PhaseResult WriteWrapperPages(const RunContext& context);

}  // namespace vantorium::generation
