#include "publish/UploadFolder.h"

#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "publish/FTPPath.h"

#include <algorithm>

namespace vantorium::publish {
namespace {

std::string WithoutOneAtEnd(std::string text, char separator) {
  if (text.ends_with(separator)) text.pop_back();
  return text;
}

/// A name as one line of a message.
std::string OnOneLine(const std::string& name) {
  return env::ReplaceAll(env::ReplaceAll(name, "\r", "\\r"), "\n", "\\n");
}

/// Refuses a file name that would be a path here and on the server, perhaps one that leads elsewhere, or that does not
/// fit into a command to the server.
void RefuseName(const std::string& name) {
  const auto refuse = [&name](const char* what) {
    throw env::RuntimeFailure(env::FailureKind::FileAccess,
                              "\"" + OnOneLine(name) + "\" has a " + what + " in its name.");
  };
  if (name.find('\\') != std::string::npos) refuse("backslash");
  if (name.find_first_of("\r\n") != std::string::npos) refuse("line break");
}

bool IsLeftOut(EntryKind kind) {
  return kind == EntryKind::LinkedFolder || kind == EntryKind::BrokenLink;
}

}  // namespace

/// The folder that the upload has reached, here and on the server.
struct FolderUpload::Place {
  std::string local;
  std::string remote;
  bool overwrite;

  [[nodiscard]] std::string LocalPath(const std::string& name) const { return local + "\\" + name; }
  [[nodiscard]] std::string RemotePath(const std::string& name) const {
    return remote.empty() ? name : remote + "/" + name;
  }
};

// With a separator appended, an empty folder would mean the root folder.

std::int32_t FolderUpload::CountSteps(const std::string& localFolder) {
  std::int32_t steps = 0;
  if (!localFolder.empty()) std::ignore = Count(localFolder, steps);
  return steps;
}

bool FolderUpload::UploadFolder(const std::string& localFolder, const std::string& remotePath, bool overwrite) {
  if (localFolder.empty()) return false;
  return Send({WithoutOneAtEnd(localFolder, '\\'), WithoutOneAtEnd(RelativeToSession(remotePath), '/'), overwrite});
}

/// A folder is one step of its parent, and then one of its own.
bool FolderUpload::Count(const std::string& folder, std::int32_t& steps) {
  const std::string local = WithoutOneAtEnd(folder, '\\');
  return Trapped([&] {
    ++steps;
    const FolderListing listing = List(local);
    const auto countEntry = [&](const FolderEntry& entry) {
      if (IsLeftOut(entry.kind)) return true;
      ++steps;
      return entry.kind != EntryKind::Folder || Count(local + "\\" + entry.name, steps);
    };
    return VisitEntries(listing, countEntry) && listing.complete;
  });
}

bool FolderUpload::Send(const Place& place) {
  return Trapped([&] { return MakeDirectory(place) && SendEntries(place); });
}

bool FolderUpload::SendEntries(const Place& place) {
  const FolderListing listing = List(place.local);
  if (!VisitEntries(listing, [&](const FolderEntry& entry) { return SendEntry(place, entry); })) return false;
  if (!listing.complete && !cancelReported_) {
    environment_.progress.SetText3("The folder \"" + environment_.paths.Surface(place.local) + "\" cannot be read\r\n",
                                   true);
  }
  return listing.complete;
}

bool FolderUpload::Trapped(const std::function<bool()>& pass) {
  bool passed = false;
  try {
    passed = pass();
  } catch (const env::RuntimeFailure& failure) {
    environment_.boxes.Critical("Failure", "An Error has occurred during the Upload of this Gallery:\r\r" +
                                               failure.Description() + "\r\rError #" +
                                               std::to_string(failure.Number()));
  }
  // A cancel may have broken off the last file, or come after it.
  return !Cancelled() && passed;
}

bool FolderUpload::VisitEntries(const FolderListing& listing, const Visit& visit) {
  for (const FolderEntry& entry : listing.entries) {
    if (Cancelled() || !visit(entry)) return false;
  }
  return true;
}

bool FolderUpload::MakeDirectory(const Place& place) {
  Announce("Creating Directory \"" + place.remote + "\"...");
  if (!environment_.ftp.FTPCreateDirectoryPath(place.remote)) return false;
  Step();
  return true;
}

bool FolderUpload::SendEntry(const Place& place, const FolderEntry& entry) {
  if (IsLeftOut(entry.kind)) {
    LeaveOut(environment_.paths.Surface(place.LocalPath("")) + OnOneLine(entry.name), entry.kind);
    return true;
  }
  RefuseName(entry.name);
  return entry.kind == EntryKind::Folder ? SendSubfolder(place, entry.name) : SendFile(place, entry.name);
}

bool FolderUpload::SendSubfolder(const Place& place, const std::string& name) {
  Step();
  return Send({place.LocalPath(name), place.RemotePath(name), place.overwrite});
}

bool FolderUpload::SendFile(const Place& place, const std::string& name) {
  Announce("Uploading File \"" + environment_.paths.Surface(place.LocalPath(name)) + "\"...");
  const bool sent = environment_.ftp.FTPCopyFile(place.LocalPath(name), place.RemotePath(name), place.overwrite);
  Step();
  return sent;
}

void FolderUpload::LeaveOut(const std::string& path, EntryKind kind) {
  (kind == EntryKind::BrokenLink ? brokenLinks_ : linkedFolders_).push_back(path);
  environment_.progress.SetText3("Leaving out symbolic link " + path + "\r\n", true);
}

void FolderUpload::TellLeftOut() const {
  TellLeftOut(linkedFolders_, "Folders left out", "These Folders are symbolic Links and were not uploaded:\r");
  TellLeftOut(brokenLinks_, "Links left out", "These symbolic Links are broken and were not uploaded:\r");
}

void FolderUpload::TellLeftOut(const std::vector<std::string>& links, const char* title, std::string text) const {
  if (links.empty()) return;
  constexpr std::size_t kMostInBox = 10;
  const std::size_t named = std::min(links.size(), kMostInBox);
  for (std::size_t i = 0; i < named; ++i) text += "\r" + links[i];
  const std::size_t more = links.size() - named;
  if (more > 0) text += "\r\r" + std::to_string(more) + " more are named in the Log.";
  environment_.boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, title, text);
}

/// Large folders and slow disks take time; meanwhile the window stays responsive and a cancel is obeyed.
FolderListing FolderUpload::List(const std::string& localFolder) {
  const auto native = environment_.paths.ToNative(localFolder + "\\");
  if (!native) return {};
  return ListFolder(*native, [this] {
    environment_.loop.Turn();
    return !Cancelled();
  });
}

bool FolderUpload::Cancelled() {
  if (!environment_.cancel.CheckForCancel(environment_.progress)) return false;
  if (!cancelReported_) {
    environment_.boxes.Show(env::BoxKind::Exclamation, env::BoxButtons::Ok, "Upload cancelled",
                            "The User has cancelled Upload of the Gallery");
  }
  cancelReported_ = true;
  return true;
}

void FolderUpload::Announce(const std::string& text) {
  environment_.progress.SetText2(text);
  environment_.window.SetStatusText(text);
}

void FolderUpload::Step() {
  environment_.progress.SetProgress(environment_.progress.GetProgress() + 1);
}

}  // namespace vantorium::publish
