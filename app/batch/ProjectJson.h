#pragma once

#include "core/Project.h"

#include <string>

namespace vantorium::batch {

/// Returns the project as JSON text in UTF-8: `project` with every field under its own name (texts and digits as
/// strings, all else as numbers, records as objects), `images`, `thumbnailPageCount`. Invalid UTF-8 is replaced.
[[nodiscard]] std::string ProjectAsJson(const core::Project& project);

}  // namespace vantorium::batch
