#pragma once

#include <filesystem>
#include <string_view>

namespace vantorium::env {

/// Writes `bytes` to `target`, which never shows a partial file: the bytes go to a new file in the same folder, which
/// gets the target's owner and permissions as NeighbourFile says and is then renamed over it. Replaces a symbolic link
/// itself, not the file it points to. Throws RuntimeFailure FileAccess; then an old target is unchanged and no new file
/// remains.
void WriteFileWhole(const std::filesystem::path& target, std::string_view bytes);

/// Does the same for a file that the user keeps, such as a project: the bytes are synced to disk before the rename, and
/// a symbolic link stays, so that the file it points to, which may not exist yet, is written. Removes what a program that
/// was killed while it wrote to the folder left there.
void WriteKeptFile(const std::filesystem::path& target, std::string_view bytes);

}  // namespace vantorium::env
