#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace vantorium {

/// The folders of the drive letters, as PathMap takes them, out of the text of a preferences file: one key a letter in
/// the section DRIVES, such as `C="/home/me"`. Unlike other values they are looked for within that section only. A
/// folder that is not absolute, or holds a NUL, is passed over; of two folders of a letter the first counts.
[[nodiscard]] std::map<char, std::string> DrivesOf(std::string_view preferences);

/// The same for a file; empty when it cannot be read.
[[nodiscard]] std::map<char, std::string> ReadDriveTable(const std::filesystem::path& preferencesFile);

}  // namespace vantorium
