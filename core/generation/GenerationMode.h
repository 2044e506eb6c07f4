#pragma once

#include <cstdint>

namespace vantorium::generation {

/// The purpose of a run.
enum class GenerationMode : std::int16_t {
  Create = 0,   ///< write the gallery to a local folder
  Preview = 1,  ///< write only the pages to the temporary folder, with links to the source files
  Publish = 2,  ///< make the gallery in the temporary folder and send each file to a server
  Upload = 3,   ///< send an existing folder to a server
};

[[nodiscard]] constexpr bool SendsToServer(GenerationMode mode) {
  return mode == GenerationMode::Publish || mode == GenerationMode::Upload;
}

}  // namespace vantorium::generation
