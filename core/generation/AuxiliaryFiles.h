#pragma once

#include "core/generation/RunContext.h"

#include <string>
#include <vector>

namespace vantorium::generation {

/// A backdrop or link graphic that a run copies.
struct AuxiliaryFile {
  std::string source;  ///< path text
  std::string name;    ///< in the images folder: a fixed name with the extension of the source
  bool isImageLink = false;
};

/// The files that the run copies, in the order of copying. A file without a folder is looked for beside the project
/// file.
[[nodiscard]] std::vector<AuxiliaryFile> Backdrops(const RunState& run);
[[nodiscard]] std::vector<AuxiliaryFile> PageLinkGraphics(const RunState& run);

/// The message if a file cannot be copied to a local folder.
[[nodiscard]] std::string UnableToCopyAuxiliary(const RunState& run, const AuxiliaryFile& file);

/// Copy these files into the images folder.
[[nodiscard]] PhaseResult CopyBackdrops(const RunContext& context);
[[nodiscard]] PhaseResult CopyLinkGraphics(const RunContext& context);

}  // namespace vantorium::generation
