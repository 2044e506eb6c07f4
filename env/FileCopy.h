#pragma once

#include <filesystem>

namespace vantorium {

/// Copies `source` to `target`: bytes, access and write time, and permissions (the owner may always write the copy)
/// unless it replaces a file, which keeps its own. The target's name only ever shows a whole file. A file copied onto
/// itself stays as it is. Throws RuntimeFailure FileAccess when the source is no regular file, the target exists and
/// `overwrite` is false, it may not be replaced (env/NeighbourFile.h), or the bytes cannot be read or written.
void CopyFileWhole(const std::filesystem::path& source, const std::filesystem::path& target, bool overwrite);

}  // namespace vantorium
