#pragma once

#include "core/generation/RunOrder.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/Preferences.h"
#include "publish/ServerProfile.h"
#include "ui/model/files/FileBrowser.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::ui {

/// Completes path text of a folder in place, so that it ends in a backslash. Returns false, after a message box, if it
/// has no drive.
[[nodiscard]] bool NormalizeFolderPath(std::string& path, env::MessageBoxPort& boxes);

/// What `key` types into a path after the text `before`: a backslash for a slash, except in a native path, which begins
/// with a slash or a tilde.
[[nodiscard]] std::string PathKey(std::string_view before, const std::string& key);

/// The result of the button that starts the run.
enum class ApplyResult {
  Done,            ///< the dialog closes
  Refused,         ///< a message box told why; the dialog stays open
  NoSourceFolder,  ///< the same, for the folder to upload
  NoDestination,   ///< the same, for the destination on the server
};

/// The dialog before a run that writes a result: what to make, where it goes, and the password for the server. The
/// model lives as long as the main window, so the user's choices last from one opening to the next.
class CreateGalleryModel {
 public:
  using Switch = bool generation::RunOrder::*;

  /// `serverListFile`: see publish/ServerListFile.h.
  CreateGalleryModel(const env::Preferences& preferences, std::filesystem::path serverListFile,
                     const env::PathMap& paths, env::MessageBoxPort& boxes);

  /// Call each time the dialog opens. Fills in the last target and the preferred server, without a password. A server
  /// list that cannot be read counts as empty.
  void ComeUp();

  /// `option`: any mode but Preview.
  void Choose(generation::GenerationMode option) { order_.Mode = option; }
  [[nodiscard]] generation::GenerationMode Chosen() const { return order_.Mode; }
  /// Whether the run makes files, so that the user can choose which.
  [[nodiscard]] bool Produces() const { return order_.Mode != generation::GenerationMode::Upload; }
  void Check(Switch box, bool checked) { order_.*box = checked; }
  [[nodiscard]] bool IsChecked(Switch box) const { return order_.*box; }
  [[nodiscard]] bool CanOverwrite() const { return Produces() && (order_.CreateImages || order_.CreateThumbnails); }

  [[nodiscard]] bool CanRemoveUnused() const { return order_.OnlyChanges; }

  [[nodiscard]] const std::string& FilePath() const { return filePath_; }
  void EditFilePath(const std::string& text) { filePath_ = text; }
  /// Completes the typed text to the path of a file.
  void LeaveFilePath();
  void BrowseFilePath(FileBrowser& browser);

  [[nodiscard]] const std::string& SourceFolder() const { return sourceFolder_; }
  void EditSourceFolder(const std::string& text) { sourceFolder_ = text; }
  void LeaveSourceFolder();
  /// Returns true if a folder was chosen.
  [[nodiscard]] bool BrowseSourceFolder(FolderBrowser& browser);

  /// The destinations of a gallery and of a folder, as shown to the user. An edit by hand sets the host and the path of
  /// this run; user and base directory stay those of the server that was filled in.
  [[nodiscard]] const std::string& PublishDestination() const { return publishDestination_; }
  [[nodiscard]] const std::string& UploadDestination() const { return uploadDestination_; }
  void EditPublishDestination(const std::string& text) { SetDestinations(text, uploadDestination_); }
  void EditUploadDestination(const std::string& text) { SetDestinations(publishDestination_, text); }
  /// Fills in the server chosen in the server dialog.
  void TakeServer(const publish::ServerProfile& profile);

  /// The password for both kinds of upload.
  [[nodiscard]] const std::string& Password() const { return UploadPassword; }
  void EditPassword(const std::string& text) { UploadPassword = text; }
  [[nodiscard]] bool IsPasswordHidden() const { return isPasswordHidden_; }
  /// Call when the server dialog, which shows `profile`, is no longer in front.
  void LeaveServers(const publish::ServerProfile& profile);

  [[nodiscard]] ApplyResult Apply();
  void Cancel() { Cancelled = true; }
  /// What the user chose, once the dialog has closed; nullopt if it was cancelled.
  [[nodiscard]] std::optional<generation::RunOrder> Order() const;

  bool Cancelled = true;
  // The server that was filled in, and the password for this run only.
  std::string UploadServer;
  std::string UploadUser;
  std::string UploadPassword;
  std::string UploadIndexPath;
  std::string UploadIndexFile;
  std::string UploadJumpTo;

 private:
  void FillIn(const std::string& publish, const std::string& upload);
  void SetDestinations(const std::string& publish, const std::string& upload);
  /// The chosen destination, or nullopt if it is still the one that was filled in.
  [[nodiscard]] std::optional<std::string> TypedDestination() const;
  [[nodiscard]] bool RefuseDestination() const;
  void TakeUploadValues(const publish::ServerProfile& profile);
  void SetServer(generation::RunOrder& order) const;
  [[nodiscard]] std::string Finished(const std::string& typed) const;
  [[nodiscard]] bool NothingIsMade() const;

  publish::FTPOptions serverOptions_;
  const env::Preferences& preferences_;
  std::filesystem::path serverListFile_;
  const env::PathMap& paths_;
  env::MessageBoxPort& boxes_;
  generation::RunOrder order_;  // mode and switches; Order sets the rest
  std::string filePath_;
  std::string sourceFolder_;
  std::string publishDestination_;
  std::string uploadDestination_;
  std::string filledPublishDestination_;
  std::string filledUploadDestination_;
  bool isPasswordHidden_ = true;
};

}  // namespace vantorium::ui
