#pragma once

#include "env/PathMap.h"

#include <string>

namespace vantorium {

/// Whether two paths (path text) lead to one file that is there, whatever they look like.
[[nodiscard]] bool IsSameFile(const std::string& one, const std::string& other, const PathMap& paths);

/// Why `new` does not write to `file` (path text), a sentence; empty when it does. What is there stays, unless it is a
/// project and `force` is given.
[[nodiscard]] std::string RefusalOfNewProject(const std::string& file, bool force, const PathMap& paths);

/// The index file that a path (path text) means: a folder, or a text with a separator at its end, means the index.htm
/// in it.
[[nodiscard]] std::string IndexFileOf(const std::string& path, const PathMap& paths);

/// Why there can be no index file of that path (path text), a sentence; empty when there can.
[[nodiscard]] std::string RefusalOfIndexFile(const std::string& path, const PathMap& paths);

}  // namespace vantorium
