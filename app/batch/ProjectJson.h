#pragma once

#include "core/Project.h"
#include "env/PathMap.h"

#include <string>

namespace vantorium::batch {

/// Returns the project as JSON text in UTF-8: `project` with every field under its own name (texts and digits as
/// strings, all else as numbers, records as objects), `images`, `thumbnailPageCount`. An image whose source has a place
/// on this system also has `native_path`. Invalid UTF-8 is replaced.
[[nodiscard]] std::string ProjectAsJson(const core::Project& project, const env::PathMap& paths);

}  // namespace vantorium::batch
