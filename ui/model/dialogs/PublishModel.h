#pragma once

#include "publish/ServerList.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// A text of a profile that the user edits.
using ServerField = std::string ServerProfile::*;

/// What a key types into the box of a field: host and paths have slashes only, the gallery's path has no blanks.
[[nodiscard]] std::string ServerKey(ServerField field, const std::string& key);

/// The dialog for the servers of uploads. What is typed goes into the selected profile; the file follows with Accept,
/// and with each new server at once.
class PublishModel {
 public:
  /// Reads the list; failures are told in boxes. `file`: see publish/ServerListFile.h.
  PublishModel(std::filesystem::path file, MessageBoxPort& boxes);

  /// The dialog is for the upload of a folder, which has no index file. Set before it is shown.
  bool HideIndexFile = false;

  /// Nothing is selected in an empty list.
  [[nodiscard]] const std::vector<ServerProfile>& Profiles() const { return list_.Profiles(); }
  [[nodiscard]] std::optional<std::size_t> Selected() const { return list_.Selected(); }
  /// What the boxes show: empty texts in an empty list.
  [[nodiscard]] const ServerProfile& Shown() const;
  void Select(std::size_t index);
  void Edit(ServerField field, const std::string& text);

  /// False, with a message box, when there is a server of that name.
  bool AddNewServer(const std::string& name);
  void DeleteServer();

  [[nodiscard]] bool CanAccept() const { return !Shown().ServerURL.empty(); }
  [[nodiscard]] bool CanDelete() const { return Selected().has_value(); }
  /// False once the list was changed in a way that Cancel does not undo.
  [[nodiscard]] bool CanCancel() const { return canCancel_; }

  /// False, with a message box, when the index file is none.
  [[nodiscard]] bool Accept();
  void Cancel();
  /// Whether the dialog was left with Accept.
  [[nodiscard]] bool QueryPublish() const { return queryPublish_; }

  /// The time-out's box, which no profile keeps.
  std::string textTimeout = "0";
  /// The number at the beginning of that text, 0 without one. Throws RuntimeFailure Overflow beyond 16 bits.
  [[nodiscard]] std::int16_t GetTimeout() const;

 private:
  MessageBoxPort& boxes_;
  ServerList list_;
  bool canCancel_ = true;
  bool queryPublish_ = false;
};

}  // namespace vantorium
