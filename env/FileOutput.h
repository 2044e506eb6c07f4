#pragma once

#include <filesystem>
#include <string_view>

namespace vantorium {

/// Writes `bytes` to `target` so that the name only ever shows a whole file: they go to a neighbour in the same folder,
/// which is then renamed over the target and takes after it as NeighbourFile says. A symbolic link is replaced, and not
/// what it points to. Throws RuntimeFailure FileAccess, with nothing left behind and an old target untouched.
void WriteFileWhole(const std::filesystem::path& target, std::string_view bytes);

/// The same for a file that the user keeps, such as a project: the bytes are forced to the disk before they take the
/// file's name, and a symbolic link stays, so that the file it leads to is written, which may not be there yet.
void WriteKeptFile(const std::filesystem::path& target, std::string_view bytes);

}  // namespace vantorium
