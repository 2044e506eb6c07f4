#pragma once

#include <filesystem>

namespace vantorium::env {

/// Copies `source` to `target`: bytes, access and write time, and permissions (the owner can always write the copy). A
/// replaced file keeps its own permissions. `target` never shows a partial file. A file copied onto itself stays
/// unchanged. Throws RuntimeFailure FileAccess if the source is not a regular file, the target exists and `overwrite`
/// is false, the target may not be replaced (env/NeighbourFile.h), or the bytes cannot be read or written.
void CopyFileWhole(const std::filesystem::path& source, const std::filesystem::path& target, bool overwrite);

}  // namespace vantorium::env
