#pragma once

#include <filesystem>
#include <string_view>

namespace vantorium {

/// Whether the bytes must survive a power failure before they take the file's name.
enum class Durability { Cached, Synced };

/// Writes `bytes` to `target` so that the name only ever shows a whole file: they go to a neighbour in the same folder,
/// which is then renamed over the target and has its permissions. An old file that its owner may not write is not
/// replaced; a symbolic link is, and not what it points to. Throws RuntimeFailure FileAccess, with nothing left behind
/// and an old target untouched.
void WriteFileWhole(const std::filesystem::path& target, std::string_view bytes,
                    Durability durability = Durability::Cached);

}  // namespace vantorium
