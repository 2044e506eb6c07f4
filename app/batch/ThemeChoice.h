#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantorium::batch {

/// Returns the project file (path text) of the theme that the user typed, or an empty text for an empty one. It is a
/// path if it has a separator or ends in ".gpj"; else it is the name of a theme that comes with the program, or of one
/// of the user's own in the program's folder (native). For a name that no theme has, says in one line which there are
/// and returns nullopt.
[[nodiscard]] std::optional<std::string> ProjectOfTheme(const std::string& typed,
                                                        const std::filesystem::path& programFolder,
                                                        const env::PathMap& paths);

}  // namespace vantorium::batch
