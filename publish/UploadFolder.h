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

/// What the upload of a folder needs around it. The owner keeps these alive for the length of the run.
struct UploadEnvironment {
  FTPUploads& ftp;
  const PathMap& paths;
  MessageBoxPort& boxes;
  EventLoop& loop;
  CancelPoll& cancel;
  ProgressWindow& progress;
  std::function<void(const std::string& text)> showStatus;  ///< panel 1 of the status bar
};

/// Sends a local folder, with all below it, to a server. One object serves one run, which reports a cancel once.
class FolderUpload {
 public:
  explicit FolderUpload(UploadEnvironment environment) : environment_(std::move(environment)) {}

  /// Sends the contents of `localFolder` (path text) to `remotePath`, which is made first and is relative to where the
  /// session stands, with or without slashes in front. With a `counter` above -1 nothing is sent: what there is to do
  /// is added to the counter. With -1 the same number of steps goes to the progress window. Folders and files come in
  /// the order of their names, a folder with all it holds. The first thing that fails ends the whole upload. False for
  /// a failure, of which the user has heard where this operation has something to say (a folder that can't be read is
  /// passed up in silence), and for a cancel, of which the user has always heard.
  [[nodiscard]] bool UploadFolder(const std::string& localFolder, const std::string& remotePath, bool overwrite,
                                  std::int32_t& counter);

  /// Tells the user which folders were left out because they are symbolic links: these may lead out of the folder that
  /// is to be sent, or back into it.
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
