#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace vantorium {

/// The folders of the drive letters, as PathMap takes them, out of the text of a preferences file: one key a letter in
/// the section DRIVES, such as `C="/home/me"`. Unlike other values they are looked for within that section only. A
/// folder that is not absolute, or holds a NUL, is passed over; of two folders of a letter the first counts.
[[nodiscard]] std::map<char, std::string> DrivesOf(std::string_view preferences);

/// The map of these drives for a file, with the usual drives of `home` when it names none or is not there. A file that
/// is there and cannot be read gives a map without drives: nobody knows what a letter stands for, and a guess would put
/// the user's files elsewhere.
[[nodiscard]] PathMap ReadPathMap(const std::filesystem::path& preferencesFile, const std::filesystem::path& home);

}  // namespace vantorium
