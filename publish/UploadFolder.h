#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "publish/CancelPoll.h"
#include "publish/FTPUploads.h"
#include "publish/FolderListing.h"
#include "publish/ProgressWindow.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantorium {

/// What FolderUpload depends on. The owner keeps these alive for the length of the run.
struct UploadEnvironment {
  FTPUploads& ftp;
  const PathMap& paths;
  MessageBoxPort& boxes;
  EventLoop& loop;
  CancelPoll& cancel;
  ProgressWindow& progress;
  std::function<void(const std::string& text)> showStatus;  ///< panel 1 of the status bar
};

/// Sends a local folder, with everything below it, to a server. One object serves one run and reports a cancel once.
class FolderUpload {
 public:
  explicit FolderUpload(UploadEnvironment environment) : environment_(std::move(environment)) {}

  /// Sends the contents of `localFolder` (path text) to `remotePath`, which is created first and is relative to the
  /// session's current directory, with or without leading slashes. If `counter` is above -1, nothing is sent, and the
  /// number of steps is added to `counter`. If it is -1, the same number of steps is added to the progress window.
  /// Folders and files are sent in the order of their names, each folder with everything in it. The first failure ends
  /// the whole upload. Returns false on a failure, which is shown here only if it is a RuntimeFailure (a folder that
  /// cannot be read is not), and on a cancel, which is always shown.
  [[nodiscard]] bool UploadFolder(const std::string& localFolder, const std::string& remotePath, bool overwrite,
                                  std::int32_t& counter);

  /// Tells the user which folders were left out because they are symbolic links: these may lead out of the folder being
  /// sent, or back into it.
  void TellLeftOut() const;

 private:
  struct Place;

  [[nodiscard]] bool UploadTrapped(const Place& place);
  [[nodiscard]] bool UploadPlace(const Place& place);
  [[nodiscard]] bool EnterFolder(const Place& place);
  [[nodiscard]] bool UploadEntry(const Place& place, const FolderEntry& entry);
  [[nodiscard]] bool UploadSubfolder(const Place& place, const std::string& name);
  [[nodiscard]] bool SendFile(const Place& place, const std::string& name);

  void LeaveOut(const Place& place, const std::string& name);

  [[nodiscard]] FolderListing List(const std::string& localFolder);
  [[nodiscard]] bool Cancelled();
  void Announce(const std::string& text);
  void Step(const Place& place);

  UploadEnvironment environment_;
  bool cancelReported_ = false;
  std::vector<std::string> leftOut_;  ///< folders that are symbolic links
};

}  // namespace vantorium
