#pragma once

#include "env/MessageBoxPort.h"
#include "publish/ServerProfile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium {

class ServerListValues;

/// Cleans up what the user typed into a profile, in place. False, with a message box, for an index file that holds a
/// path; with `hideIndexFile`, when the user does not see that field, it is emptied instead. An empty one is
/// "index.htm".
[[nodiscard]] bool ValidateSettings(ServerProfile& profile, bool hideIndexFile, MessageBoxPort& boxes);

/// The servers that the user keeps, one of them selected while there is any, and the rules of their dialog. Edits go
/// straight into the selected profile; the file follows with SaveServerList.
class ServerList {
 public:
  /// `file`: see publish/ServerListFile.h.
  ServerList(std::filesystem::path file, MessageBoxPort& boxes) : file_(std::move(file)), boxes_(boxes) {}

  /// Reads the file anew. A list of zero becomes one with a default profile, and is written. A failure is shown, ends
  /// the reading, and what was read so far is written, so that the next opening finds a consistent file.
  void Open();
  /// Writes the file; false when that failed, which the user was told.
  [[nodiscard]] bool SaveServerList();

  /// Adds a profile to the end and selects it. Its index path and file come out of `indexText`, which may have
  /// backslashes. A profile that the file cannot hold is not added, which the user is told.
  void AddServerProfile(ServerProfile profile, std::string_view indexText);
  /// The button New, with the name that the user confirmed: adds an empty profile and writes the file. False, with a
  /// message box, when there is one of exactly that name.
  [[nodiscard]] bool AddNewServer(const std::string& name);
  /// The button Delete: removes the selected profile, if any, and selects the one that takes its place, else the last.
  void DeleteServer();
  /// `index` counts from 0 and has to be one of the list.
  void Select(std::size_t index);

  [[nodiscard]] const std::vector<ServerProfile>& Profiles() const { return profiles_; }
  /// Counts from 0; nothing in an empty list.
  [[nodiscard]] std::optional<std::size_t> Selected() const { return selected_; }
  /// The profile to edit, null in an empty list; valid until the list changes.
  [[nodiscard]] ServerProfile* SelectedProfile() { return selected_ ? &profiles_[*selected_] : nullptr; }
  /// Name of the profile that was selected when the list was opened: the one that Cancel shows again.
  [[nodiscard]] const std::string& NameBefore() const { return nameBefore_; }

 private:
  void Read();
  void ReadProfile(const ServerListValues& values, std::int32_t number);
  void SelectPreferred(std::int32_t preferred);

  std::filesystem::path file_;
  MessageBoxPort& boxes_;
  std::vector<ServerProfile> profiles_;
  std::optional<std::size_t> selected_;
  std::string nameBefore_;
};

}  // namespace vantorium
