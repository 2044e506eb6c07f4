#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace vantorium::env {

/// Reads the folders of the drive letters, for PathMap, from the text of a preferences file: one key per letter in the
/// section DRIVES, such as `C="/home/me"`. Unlike other values, they are read from that section only. A folder that is
/// not absolute or contains a NUL is ignored; if a letter has two folders, the first is used.
[[nodiscard]] std::map<char, std::string> DrivesOf(std::string_view preferences);

/// Reads the drives from a preferences file. If the file is missing or names no drives, the map has the usual drives of
/// `home`. If the file exists but cannot be read, the map has no drives: the meaning of the letters is unknown, and a
/// guess would put the user's files in the wrong place.
[[nodiscard]] PathMap ReadPathMap(const std::filesystem::path& preferencesFile, const std::filesystem::path& home);

}  // namespace vantorium::env
