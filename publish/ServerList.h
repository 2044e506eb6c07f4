#pragma once

#include "env/MessageBoxPort.h"
#include "publish/ServerProfile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::publish {

class ServerListValues;

/// Cleans up what the user typed into a profile, in place. Returns false, after a message box, if the index file
/// contains a path. With `hideIndexFile`, where the user did not type it, such an index file is emptied instead. An
/// empty index file becomes "index.htm".
[[nodiscard]] bool ValidateSettings(ServerProfile& profile, bool hideIndexFile, env::MessageBoxPort& boxes);

/// The user's servers, one of them selected if there is any. Edits change the selected profile directly; SaveServerList
/// writes them to the file.
class ServerList {
 public:
  /// `file`: see publish/ServerListFile.h.
  ServerList(std::filesystem::path file, env::MessageBoxPort& boxes) : file_(std::move(file)), boxes_(boxes) {}

  /// Reads the file again. A list of zero servers gets a default profile and is written. A failure is shown and ends
  /// the reading; the profiles read so far are then written, so that the next Open finds a consistent file.
  void Open();
  /// Writes the file. Returns false if that failed, after telling the user.
  [[nodiscard]] bool SaveServerList();

  /// Adds a profile to the end and selects it. Takes its index path and file from `indexText`, which may contain
  /// backslashes. A profile that the file cannot hold is not added, and the user is told.
  void AddServerProfile(ServerProfile profile, std::string_view indexText);
  /// Adds an empty profile under that name and writes the file. Returns false, after a message box, if a server has
  /// exactly that name.
  [[nodiscard]] bool AddNewServer(const std::string& name);
  /// Removes the selected profile, if any, and selects the one that takes its place, else the last.
  void DeleteServer();
  /// Keeps the fingerprint of an accepted certificate in each encrypted profile of that host, and writes the file if
  /// there is one.
  void RememberCertificate(const std::string& host, const std::string& fingerprint);
  /// `index` counts from 0. Throws RuntimeFailure SubscriptOutOfRange if it is outside the list.
  void Select(std::size_t index);

  [[nodiscard]] const std::vector<ServerProfile>& Profiles() const { return profiles_; }
  /// Counts from 0; nullopt if the list is empty.
  [[nodiscard]] std::optional<std::size_t> Selected() const { return selected_; }
  /// The profile to edit; null if the list is empty. Valid until the list changes.
  [[nodiscard]] ServerProfile* SelectedProfile() { return selected_ ? &profiles_[*selected_] : nullptr; }
  /// The name of the profile that was selected when the list was opened.
  [[nodiscard]] const std::string& NameBefore() const { return nameBefore_; }

 private:
  void Read();
  void ReadProfile(const ServerListValues& values, std::int32_t number);
  void SelectPreferred(std::int32_t preferred);

  std::filesystem::path file_;
  env::MessageBoxPort& boxes_;
  std::vector<ServerProfile> profiles_;
  std::optional<std::size_t> selected_;
  std::string nameBefore_;
};

}  // namespace vantorium::publish
