#pragma once

#include "env/PathMap.h"

#include <string>

namespace vantorium::batch {

/// Whether two paths (path text) lead to the same existing file, however they are written.
[[nodiscard]] bool IsSameFile(const std::string& one, const std::string& other, const env::PathMap& paths);

/// Returns a sentence why no project is written to `file` (path text); empty if one is. An existing file stays, unless
/// it is a project and `replace` is true.
[[nodiscard]] std::string RefusalOfProject(const std::string& file, bool replace, const env::PathMap& paths);

/// Returns the index file that a path (path text) means: for a folder, or a text that ends in a separator, the
/// index.htm in it.
[[nodiscard]] std::string IndexFileOf(const std::string& path, const env::PathMap& paths);

/// Returns a sentence why there can be no index file of that path (path text); empty if there can.
[[nodiscard]] std::string RefusalOfIndexFile(const std::string& path, const env::PathMap& paths);

}  // namespace vantorium::batch
