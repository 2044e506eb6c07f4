#include "ui/model/dialogs/CreateGalleryModel.h"

#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "publish/FTPPath.h"
#include "publish/ServerListFile.h"
#include "ui/model/dialogs/ServerPlace.h"

namespace vantorium {
namespace {

/// Returns the preferred profile, or nullopt if there is none.
std::optional<ServerProfile> PreferredServer(const std::filesystem::path& file) {
  try {
    const ServerListValues values(file);
    const std::int32_t count = values.Integer("ServerCount");
    const std::int32_t preferred = values.Integer("PreferredServer");
    if (count < 1) return std::nullopt;
    const std::string index = std::to_string(preferred < 1 || preferred > count ? 1 : preferred);
    const std::string indexText = values.Text("IndexFile" + index);
    return ServerProfile{.ServerURL = values.Text("ServerURL" + index),
                         .UserName = values.Text("UserName" + index),
                         .IndexPath = FTPGetFilePath(indexText),
                         .IndexFile = FTPGetFileName(indexText),
                         .JumpTo = values.Text("JumpTo" + index)};
  } catch (const RuntimeFailure&) {
    return std::nullopt;
  }
}

/// Returns server, folder and index file of a gallery. IndexPath may end in a slash.
std::string PublishText(const ServerProfile& profile) {
  const std::string& path = profile.IndexPath;
  const bool needsSlash = !path.empty() && !path.ends_with('/');
  return profile.ServerURL + "/" + path + (needsSlash ? "/" : "") + profile.IndexFile;
}

std::string UploadText(const ServerProfile& profile) {
  return profile.ServerURL + "/" + profile.IndexPath;
}

std::string WithSingleSlashes(const std::string& text) {
  return ReplaceAll(text, "//", "/");
}

}  // namespace

bool NormalizeFolderPath(std::string& path, MessageBoxPort& boxes) {
  bool valid = path.ends_with(":\\") || path.ends_with(':');
  if (!valid) {
    if (path.ends_with('\\')) path.pop_back();
    valid = path.find(":\\") != std::string::npos;
    if (!valid) boxes.Critical("Invalid Path", "You must specify an absolute Path.");
  }
  path = WithTrailingBackslash(path);
  return valid;
}

std::string PathKey(std::string_view before, const std::string& key) {
  const bool native = before.empty() || before.starts_with('/');
  return key == "/" && !native ? "\\" : key;
}

CreateGalleryModel::CreateGalleryModel(const Preferences& preferences, std::filesystem::path serverListFile,
                                       const PathMap& paths, MessageBoxPort& boxes)
    : preferences_(preferences), serverListFile_(std::move(serverListFile)), paths_(paths), boxes_(boxes) {
  choice_.option = Option::CreateGallery;
}

void CreateGalleryModel::ComeUp() {
  Cancelled = true;
  const std::string& folder = preferences_.CreateFolder;
  choice_.FilePath = (folder.empty() ? folder : WithTrailingBackslash(folder)) + preferences_.GalleryIndexFileName;
  choice_.UploadSourceFolder = GetFilePath(folder);
  choice_.UploadPassword.clear();
  const auto server = PreferredServer(serverListFile_);
  if (!server) {
    TakeUploadValues({});
    return FillIn("", "");
  }
  TakeUploadValues(*server);
  isPasswordHidden_ = !IsAnonymous(*server);
  FillIn(WithSingleSlashes(PublishText(*server)), WithSingleSlashes(UploadText(*server)));
}

void CreateGalleryModel::FillIn(const std::string& publish, const std::string& upload) {
  SetDestinations(publish, upload);
  filledPublishDestination_ = publish;
  filledUploadDestination_ = upload;
}

/// Converts typed text to path text. It may have slashes of either kind, or be a native path.
std::string CreateGalleryModel::Finished(const std::string& typed) const {
  return typed.starts_with('/') ? paths_.ToTextFromUser(typed) : WithBackslashes(typed);
}

void CreateGalleryModel::LeaveFilePath() {
  std::string& path = choice_.FilePath;
  path = Finished(path);
  if (path.find(':') == std::string::npos) path = preferences_.CreateFolder;
  if (path.ends_with(':')) path += "\\index.htm";
  if (path.ends_with('\\')) path += "index.htm";
  if (GetFileExtension(path).empty()) path += "\\index.htm";
}

void CreateGalleryModel::BrowseFilePath(FileBrowser& browser) {
  const FileDialogResult chosen = browser.DisplayFileDialog(
      {.open = false,
       .title = "Select Location and File Name for Gallery Index File",
       .initialFolder = preferences_.CreateFolder,
       .fileName = preferences_.GalleryIndexFileName,
       .filter = "All Files (*.*)|*.*|HTML Files (*.htm,*.html)|*.htm;*.html|SHTML Files (*.shtm,*.shtml)|"
                 "*.shtm;*.shtml"});
  if (!chosen.result.empty()) choice_.FilePath = chosen.result;
}

void CreateGalleryModel::LeaveSourceFolder() {
  choice_.UploadSourceFolder = Finished(choice_.UploadSourceFolder);
}

bool CreateGalleryModel::BrowseSourceFolder(FolderBrowser& browser) {
  const auto folder = browser.BrowseForFolder("Select Source Folder", GetFilePath(choice_.UploadSourceFolder));
  if (folder) choice_.UploadSourceFolder = *folder;
  return folder.has_value();
}

/// Clears the password whenever the destination changes.
void CreateGalleryModel::SetDestinations(const std::string& publish, const std::string& upload) {
  if (publish != publishDestination_ || upload != uploadDestination_) choice_.UploadPassword.clear();
  publishDestination_ = publish;
  uploadDestination_ = upload;
}

void CreateGalleryModel::TakeServer(const ServerProfile& profile) {
  TakeUploadValues(profile);
  FillIn(WithSingleSlashes(profile.ServerURL + "/" + profile.IndexPath + "/" + profile.IndexFile),
         WithSingleSlashes(UploadText(profile)));
}

void CreateGalleryModel::TakeUploadValues(const ServerProfile& profile) {
  choice_.UploadServer = profile.ServerURL;
  choice_.UploadUser = profile.UserName;
  choice_.UploadIndexPath = profile.IndexPath;
  choice_.UploadIndexFile = profile.IndexFile;
  choice_.UploadJumpTo = profile.JumpTo;
}

void CreateGalleryModel::LeaveServers(const ServerProfile& profile) {
  isPasswordHidden_ = !IsAnonymous(profile);
  choice_.UploadPassword.clear();
}

bool CreateGalleryModel::NothingIsMade() const {
  return Produces() && !choice_.CreateImages && !choice_.CreateThumbnails && !choice_.CreateHTMLFiles;
}

std::optional<std::string> CreateGalleryModel::TypedDestination() const {
  const auto unlessFilledIn = [](const std::string& text, const std::string& filledIn) {
    return text == filledIn ? std::nullopt : std::optional(text);
  };
  if (choice_.option == Option::Publish) return unlessFilledIn(publishDestination_, filledPublishDestination_);
  if (choice_.option == Option::UploadFolder) return unlessFilledIn(uploadDestination_, filledUploadDestination_);
  return std::nullopt;
}

bool CreateGalleryModel::RefuseDestination() const {
  const auto typed = TypedDestination();
  if (!typed || ReadServerPlace(*typed)) return false;
  boxes_.Critical("Invalid Destination",
                  choice_.option == Option::Publish
                      ? "Please give Server, Folder and Index File, such as \"ftp.example.org/gallery/index.htm\"."
                      : "Please give Server and Folder, such as \"ftp.example.org/gallery\".");
  return true;
}

/// If no file name was typed, uses the usual "index.htm".
void CreateGalleryModel::TakeTypedDestination(CreateChoice& choice) const {
  const auto typed = TypedDestination();
  const auto place = typed ? ReadServerPlace(*typed) : std::nullopt;
  if (!place) return;
  choice.UploadServer = place->host;
  choice.UploadIndexPath = place->path;
  if (choice.option != Option::Publish) return;
  choice.UploadIndexPath = FTPGetFilePath(place->path);
  choice.UploadIndexFile = FTPGetFileName(place->path);
  if (choice.UploadIndexFile.empty()) choice.UploadIndexFile = "index.htm";
}

Application CreateGalleryModel::Apply() {
  if (NothingIsMade()) {
    boxes_.Critical("Cannot create Gallery", "Please make sure you have one of the Options checked!");
    return Application::Refused;
  }
  if (choice_.option == Option::CreateGallery) LeaveFilePath();
  if (choice_.option == Option::UploadFolder) {
    LeaveSourceFolder();
    if (!NormalizeFolderPath(choice_.UploadSourceFolder, boxes_)) return Application::NoSourceFolder;
  }
  if (RefuseDestination()) return Application::NoDestination;
  Cancelled = false;
  return Application::Done;
}

CreateChoice CreateGalleryModel::Choice() const {
  CreateChoice choice = choice_;
  TakeTypedDestination(choice);
  if (Cancelled) choice.option = Option::Cancelled;
  return choice;
}

}  // namespace vantorium
