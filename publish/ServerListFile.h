#pragma once

#include "publish/ServerProfile.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantorium::publish {

// The file vantorium.pub in the program's folder, which keeps the user's servers between runs:
//
//   file    = "[PUBLISH]" count preferred *profile       each line ends in CR LF
//   count   = ServerCount="n"                             n profiles follow
//   preferred = PreferredServer="k"                       the selected profile, counted from 1; 0 for none
//   profile = ServerNamei= ServerURLi= UserNamei= IndexFilei= TimeOuti= JumpToi=    i from 1 to n, a line each
//             [Passivei="1"] [Encryptedi="1"] [Fingerprinti=]                       only where they are on
//
// Values are in double quotation marks, IndexFile as path, "/", file. Nothing is escaped.

/// Returns the server list file of a program folder.
[[nodiscard]] std::filesystem::path ServerListFileName(const std::filesystem::path& programFolder);

/// The values of such a file, found by the rules of env/INIText.h, but with the file read only once. All failures are
/// RuntimeFailure.
class ServerListValues {
 public:
  /// Never fails: a file that cannot be read has no values.
  explicit ServerListValues(const std::filesystem::path& file);
  ServerListValues(const ServerListValues&) = delete;
  ServerListValues& operator=(const ServerListValues&) = delete;

  /// Throws Preferences if there is no such key.
  [[nodiscard]] std::string Text(std::string_view key) const;
  /// Sets Passive, Encrypted and Fingerprint of the profile with that number. What is missing or makes no sense is off.
  void ReadOptions(const std::string& number, ServerProfile& profile) const;
  /// Throws Preferences if there is no such key; TypeMismatch or Overflow if the value is not a 32-bit number.
  [[nodiscard]] std::int32_t Integer(std::string_view key) const;

 private:
  [[nodiscard]] std::string TextOrNothing(std::string_view key) const;
  void Index();
  void Keep(std::string_view line);

  std::string text_;
  std::unordered_map<std::string, std::string_view> values_;  ///< by key in capitals; views into text_
};

/// Whether the file can hold the profile: none of its texts contains a line break or a NUL.
[[nodiscard]] bool FitsServerListFile(const ServerProfile& profile);

/// Writes the list. `file` never shows a partial file, and is on the disk when this returns; its folder is created if
/// it is missing. `selected` counts from 0. Throws RuntimeFailure FileAccess, and Preferences for a profile that does
/// not fit; an old file is then unchanged.
void WriteServerList(const std::vector<ServerProfile>& profiles, std::optional<std::size_t> selected,
                     const std::filesystem::path& file);

}  // namespace vantorium::publish
