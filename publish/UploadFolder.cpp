#include "publish/UploadFolder.h"

#include "env/PathText.h"
#include "env/RuntimeFailure.h"

namespace vantorium {
namespace {

std::string WithoutOneAtEnd(std::string text, char separator) {
  if (text.ends_with(separator)) text.pop_back();
  return text;
}

/// A name of another system's file that would be a path here and on the server, perhaps one that leads elsewhere.
void RefuseSeparators(const std::string& name) {
  if (name.find('\\') != std::string::npos) {
    throw RuntimeFailure(FailureKind::FileAccess, "\"" + name + "\" has a backslash in its name.");
  }
}

}  // namespace

/// Where the upload stands: a folder here and on the server.
struct FolderUpload::Place {
  std::string local;
  std::string remote;
  bool overwrite;
  std::int32_t& counter;

  [[nodiscard]] bool OnlyCounts() const { return counter > -1; }
  [[nodiscard]] std::string LocalPath(const std::string& name) const { return local + "\\" + name; }
  [[nodiscard]] std::string RemotePath(const std::string& name) const { return remote + "/" + name; }
};

bool FolderUpload::UploadFolder(const std::string& localFolder, const std::string& remotePath, bool overwrite,
                                std::int32_t& counter) {
  try {
    // Without this an empty text would stand for the root folder once a separator is behind it.
    if (localFolder.empty()) return false;
    return UploadPlace(
        {WithoutOneAtEnd(localFolder, '\\'), WithoutOneAtEnd(WithSlashes(remotePath), '/'), overwrite, counter});
  } catch (const RuntimeFailure& failure) {
    environment_.boxes.Critical("Failure", "An Error has occurred during the Upload of this Gallery:\r\r" +
                                               failure.Description() + "\r\rError #" +
                                               std::to_string(failure.Number()));
    return false;
  }
}

bool FolderUpload::UploadPlace(const Place& place) {
  if (!EnterFolder(place)) return false;
  const FolderListing listing = List(place.local);
  // A folder's own entries "." and ".." are polled at like all others, so a cancel is noticed in an empty folder too.
  if (listing.started && Cancelled()) return false;
  for (const FolderEntry& entry : listing.entries) {
    if (Cancelled() || !UploadEntry(place, entry)) return false;
  }
  return listing.complete;
}

bool FolderUpload::EnterFolder(const Place& place) {
  if (!place.OnlyCounts()) {
    Announce("Creating Directory \"" + place.remote + "\"...");
    if (!environment_.ftp.FTPCreateDirectoryPath(place.remote)) return false;
  }
  Step(place);
  return true;
}

bool FolderUpload::UploadEntry(const Place& place, const FolderEntry& entry) {
  if (!place.OnlyCounts()) RefuseSeparators(entry.name);
  return entry.kind == EntryKind::Folder ? UploadSubfolder(place, entry.name) : SendFile(place, entry.name);
}

/// A folder is a step of the folder it lies in, and then one of its own.
bool FolderUpload::UploadSubfolder(const Place& place, const std::string& name) {
  Step(place);
  const bool uploaded = UploadFolder(place.LocalPath(name), place.RemotePath(name), place.overwrite, place.counter);
  return !Cancelled() && uploaded;
}

bool FolderUpload::SendFile(const Place& place, const std::string& name) {
  bool sent = true;
  if (!place.OnlyCounts()) {
    Announce("Uploading File \"" + place.LocalPath(name) + "\"...");
    sent = environment_.ftp.FTPCopyFile(place.LocalPath(name), place.RemotePath(name), place.overwrite);
  }
  Step(place);
  return sent;
}

FolderListing FolderUpload::List(const std::string& localFolder) const {
  const auto native = environment_.paths.ToNative(localFolder + "\\");
  return native ? ListFolder(*native) : FolderListing();
}

bool FolderUpload::Cancelled() {
  if (!environment_.cancel.CheckForCancel(environment_.progress)) return false;
  if (!cancelReported_) {
    environment_.boxes.Show(BoxKind::Exclamation, BoxButtons::Ok, "Upload cancelled",
                            "The User has cancelled Upload of the Gallery");
  }
  cancelReported_ = true;
  return true;
}

void FolderUpload::Announce(const std::string& text) {
  environment_.progress.SetText2(text);
  environment_.showStatus(text);
}

void FolderUpload::Step(const Place& place) {
  if (place.OnlyCounts()) {
    ++place.counter;
  } else {
    environment_.progress.SetProgress(environment_.progress.GetProgress() + 1);
  }
}

}  // namespace vantorium
