#pragma once

#include "core/generation/RunContext.h"

#include <string>
#include <vector>

namespace vantorium {

/// A backdrop or link graphic of a run.
struct AuxiliaryFile {
  std::string source;  ///< path text
  std::string name;    ///< in the images folder: a fixed one with the extension of the source
  AuxiliarySpelling spelling;
};

/// Those that the run copies, in their order. A graphic without a folder is looked for beside the project file.
[[nodiscard]] std::vector<AuxiliaryFile> Backdrops(const RunState& run);
[[nodiscard]] std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run);

/// Copies them into the images folder.
[[nodiscard]] PhaseResult CopyBackdrops(const RunContext& context);
[[nodiscard]] PhaseResult CopyLinkGraphics(const RunContext& context);

}  // namespace vantorium
