#pragma once

#include "env/PathMap.h"

#include <string>

namespace vantorium::batch {

/// Whether two paths (path text) lead to the same existing file, however they are written.
[[nodiscard]] bool IsSameFile(const std::string& one, const std::string& other, const env::PathMap& paths);

/// Returns a sentence why `new` does not write to `file` (path text); empty if it does. An existing file stays, unless
/// it is a project and `force` is given.
[[nodiscard]] std::string RefusalOfNewProject(const std::string& file, bool force, const env::PathMap& paths);

/// Returns the index file that a path (path text) means: for a folder, or a text that ends in a separator, the
/// index.htm in it.
[[nodiscard]] std::string IndexFileOf(const std::string& path, const env::PathMap& paths);

/// Returns a sentence why there can be no index file of that path (path text); empty if there can.
[[nodiscard]] std::string RefusalOfIndexFile(const std::string& path, const env::PathMap& paths);

}  // namespace vantorium::batch
