#pragma once

#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/WindowState.h"
#include "publish/CancelPoll.h"
#include "publish/FTPUploads.h"
#include "publish/FolderListing.h"
#include "publish/ProgressWindow.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantorium::publish {

/// What FolderUpload depends on. The owner keeps these alive for the length of the run.
struct UploadEnvironment {
  FTPUploads& ftp;
  const env::PathMap& paths;
  env::MessageBoxPort& boxes;
  env::EventLoop& loop;
  CancelPoll& cancel;
  ProgressWindow& progress;
  env::WindowState& window;
};

/// Sends a local folder, with everything below it, to a server. One object serves one run and reports a cancel once.
class FolderUpload {
 public:
  explicit FolderUpload(const UploadEnvironment& environment) : environment_(environment) {}

  /// Returns the number of steps by which UploadFolder of `localFolder` (path text) would advance the progress window.
  /// Sends nothing. A folder that cannot be read ends the count, and so does a cancel, which is shown.
  [[nodiscard]] std::int32_t CountSteps(const std::string& localFolder);

  /// Sends the contents of `localFolder` (path text) to `remotePath`, which is created first and is relative to the
  /// session's current directory, with or without leading slashes. Folders and files are sent in the order of their
  /// names, each folder with everything in it. The first failure ends the whole upload. Returns false on a failure,
  /// which is shown here only if it is a RuntimeFailure (a folder that cannot be read is only logged), and on a cancel,
  /// which is always shown.
  [[nodiscard]] bool UploadFolder(const std::string& localFolder, const std::string& remotePath, bool overwrite);

  /// Tells the user which symbolic links were left out: those to folders, which may lead out of the folder being sent,
  /// or back into it, and those that are broken.
  void TellLeftOut() const;

 private:
  struct Place;

  using Visit = std::function<bool(const FolderEntry& entry)>;

  [[nodiscard]] bool Count(const std::string& folder, std::int32_t& steps);
  [[nodiscard]] bool Send(const Place& place);
  [[nodiscard]] bool MakeDirectory(const Place& place);
  [[nodiscard]] bool SendEntries(const Place& place);
  [[nodiscard]] bool SendEntry(const Place& place, const FolderEntry& entry);
  [[nodiscard]] bool SendSubfolder(const Place& place, const std::string& name);
  [[nodiscard]] bool SendFile(const Place& place, const std::string& name);
  void LeaveOut(const std::string& path, EntryKind kind);
  void TellLeftOut(const std::vector<std::string>& links, const char* title, std::string text) const;

  [[nodiscard]] bool Trapped(const std::function<bool()>& pass);
  /// Returns false if a visit does, or the user cancels.
  [[nodiscard]] bool VisitEntries(const FolderListing& listing, const Visit& visit);

  [[nodiscard]] FolderListing List(const std::string& localFolder);
  [[nodiscard]] bool Cancelled();
  void Announce(const std::string& text);
  void Step();

  UploadEnvironment environment_;
  bool cancelReported_ = false;
  std::vector<std::string> linkedFolders_;
  std::vector<std::string> brokenLinks_;
};

}  // namespace vantorium::publish
