#pragma once

#include "publish/ServerList.h"

#include <cstdint>
#include <string>

namespace vantorium::ui {

/// A text of a profile that the user can edit.
using ServerField = std::string publish::ServerProfile::*;
/// What the user can switch on or off in a profile.
using ServerSwitch = bool publish::ServerProfile::*;

/// What `key` types into the box of a field: hosts and paths take slashes for backslashes, the gallery's path takes
/// underscores for spaces.
[[nodiscard]] std::string ServerKey(ServerField field, const std::string& key);

/// The dialog for upload servers. Typed text goes into the selected profile. The file is written by Accept, and at once
/// when a server is added.
class PublishModel {
 public:
  /// Reads the list; failures are shown in message boxes. `file`: see publish/ServerListFile.h.
  PublishModel(std::filesystem::path file, env::MessageBoxPort& boxes);

  /// True if the dialog is for uploading a folder, which has no index file. Set before the dialog is shown.
  bool HideIndexFile = false;

  /// Nothing is selected in an empty list.
  [[nodiscard]] const std::vector<publish::ServerProfile>& Profiles() const { return list_.Profiles(); }
  [[nodiscard]] std::optional<std::size_t> Selected() const { return list_.Selected(); }
  /// The profile that the boxes show; its texts are empty if the list is empty.
  [[nodiscard]] const publish::ServerProfile& Shown() const;
  void Select(std::size_t index);
  /// A certificate that was accepted for another host is forgotten.
  void Edit(ServerField field, const std::string& text);
  void Check(ServerSwitch box, bool checked);
  [[nodiscard]] bool CanForgetCertificate() const { return !Shown().Fingerprint.empty(); }
  /// The next run asks about the server's certificate again.
  void ForgetCertificate() { Edit(&publish::ServerProfile::Fingerprint, ""); }

  /// Returns false, after a message box, if there is already a server of that name.
  bool AddNewServer(const std::string& name);
  void DeleteServer();

  [[nodiscard]] bool CanAccept() const { return !Shown().ServerURL.empty(); }
  [[nodiscard]] bool CanDelete() const { return Selected().has_value(); }
  /// False once the list has changed in a way that Cancel does not undo.
  [[nodiscard]] bool CanCancel() const { return canCancel_; }

  /// Returns false, after a message box, if the index file contains a path.
  [[nodiscard]] bool Accept();
  void Cancel();
  /// Whether the dialog was closed with Accept.
  [[nodiscard]] bool QueryPublish() const { return queryPublish_; }

  /// Text of the timeout box; no profile stores it.
  std::string textTimeout = "0";
  /// Returns the number at the beginning of textTimeout, or 0 if there is none. Throws RuntimeFailure Overflow if it
  /// does not fit 16 bits.
  [[nodiscard]] std::int16_t GetTimeout() const;

 private:
  env::MessageBoxPort& boxes_;
  publish::ServerList list_;
  bool canCancel_ = true;
  bool queryPublish_ = false;
};

}  // namespace vantorium::ui
