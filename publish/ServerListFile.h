#pragma once

#include "publish/ServerProfile.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantorium {

// The file vantorium.pub of the program's folder, with which the user keeps servers between runs:
//
//   file    = "[PUBLISH]" count preferred *profile       each line ends in CR LF
//   count   = ServerCount="n"                             n profiles follow
//   preferred = PreferredServer="k"                       the profile that is selected, from 1 on; 0 for none
//   profile = ServerNamei= ServerURLi= UserNamei= IndexFilei= TimeOuti= JumpToi=    i from 1 to n, a line each
//
// Values stand in double quotation marks, IndexFile as path, "/", file. Nothing is escaped.

/// The server list of a program's folder.
[[nodiscard]] std::filesystem::path ServerListFileName(const std::filesystem::path& programFolder);

/// The values of such a file, as the reader of preference-like files finds them (env/INIText.h), but with the file read
/// once. All failures are RuntimeFailure.
class ServerListValues {
 public:
  /// Does not fail: a file that cannot be read has no values.
  explicit ServerListValues(const std::filesystem::path& file);
  ServerListValues(const ServerListValues&) = delete;
  ServerListValues& operator=(const ServerListValues&) = delete;

  /// Throws Preferences when there is no such key.
  [[nodiscard]] std::string Text(std::string_view key) const;
  /// Throws Preferences; TypeMismatch or Overflow for a value that is no number of 32 bits.
  [[nodiscard]] std::int32_t Integer(std::string_view key) const;

 private:
  void Index();
  void Keep(std::string_view line);

  std::string text_;
  std::unordered_map<std::string, std::string_view> values_;  ///< by key in capitals; views into text_
};

/// Whether the file can hold the profile: no text of it has a line break or a NUL.
[[nodiscard]] bool FitsServerListFile(const ServerProfile& profile);

/// Writes the list whole, so that its name only ever shows a whole file that is on the disk; the folder is made when it
/// is missing. `selected` counts from 0. Throws RuntimeFailure FileAccess, and Preferences for a profile that does not
/// fit, with an old file untouched.
void WriteServerList(const std::vector<ServerProfile>& profiles, std::optional<std::size_t> selected,
                     const std::filesystem::path& file);

}  // namespace vantorium
