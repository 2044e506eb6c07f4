#pragma once

#include "core/generation/RunOrder.h"
#include "core/generation/RunState.h"

#include <string>
#include <vector>

namespace vantorium::generation {

// The names of a gallery's files relative to its folder, with slashes, and without "." and double slashes, so that a
// file has one name.

[[nodiscard]] std::string NameInGallery(const std::string& path);
[[nodiscard]] std::string NameOfImage(const RunState& run, const ImageRunInfo& image);
[[nodiscard]] std::string NameOfThumbnail(const RunState& run, const ImageRunInfo& image);
/// A file in the images folder.
[[nodiscard]] std::string NameOfAuxiliary(const RunState& run, const std::string& name);
[[nodiscard]] std::string NameOfIndexPage(const RunOrder& order);

/// Returns the names of all files of the gallery, whether or not the run makes them.
[[nodiscard]] std::vector<std::string> NamesOfGallery(const RunState& run, const RunOrder& order);

}  // namespace vantorium::generation
