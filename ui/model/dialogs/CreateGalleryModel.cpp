#include "ui/model/dialogs/CreateGalleryModel.h"

#include "env/OpenFolder.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "publish/FTPPath.h"
#include "publish/ServerListFile.h"
#include "ui/model/dialogs/ServerPlace.h"

namespace vantorium::ui {
namespace {

/// Returns the preferred profile, or nullopt if there is none.
std::optional<publish::ServerProfile> PreferredServer(const std::filesystem::path& file) {
  try {
    const publish::ServerListValues values(file);
    const std::int32_t count = values.Integer("ServerCount");
    const std::int32_t preferred = values.Integer("PreferredServer");
    if (count < 1) return std::nullopt;
    const std::string index = std::to_string(preferred < 1 || preferred > count ? 1 : preferred);
    const std::string indexText = values.Text("IndexFile" + index);
    publish::ServerProfile profile{.ServerURL = values.Text("ServerURL" + index),
                                   .UserName = values.Text("UserName" + index),
                                   .IndexPath = publish::FTPGetFilePath(indexText),
                                   .IndexFile = publish::FTPGetFileName(indexText),
                                   .JumpTo = values.Text("JumpTo" + index)};
    values.ReadOptions(index, profile);
    return profile;
  } catch (const env::RuntimeFailure&) {
    return std::nullopt;
  }
}

/// Returns server, folder and index file of a gallery. IndexPath may end in a slash.
std::string PublishText(const publish::ServerProfile& profile) {
  const std::string& path = profile.IndexPath;
  const bool needsSlash = !path.empty() && !path.ends_with('/');
  return profile.ServerURL + "/" + path + (needsSlash ? "/" : "") + profile.IndexFile;
}

std::string UploadText(const publish::ServerProfile& profile) {
  return profile.ServerURL + "/" + profile.IndexPath;
}

std::string WithSingleSlashes(const std::string& text) {
  return env::ReplaceAll(text, "//", "/");
}

}  // namespace

bool NormalizeFolderPath(std::string& path, env::MessageBoxPort& boxes) {
  bool valid = path.ends_with(":\\") || path.ends_with(':');
  if (!valid) {
    if (path.ends_with('\\')) path.pop_back();
    valid = path.find(":\\") != std::string::npos;
    if (!valid) boxes.Critical("Invalid Path", "You must specify an absolute Path.");
  }
  path = env::WithTrailingBackslash(path);
  return valid;
}

std::string PathKey(std::string_view before, const std::string& key) {
  const bool native = before.empty() || before.starts_with('/') || before.starts_with('~');
  return key == "/" && !native ? "\\" : key;
}

CreateGalleryModel::CreateGalleryModel(const env::Preferences& preferences, std::filesystem::path serverListFile,
                                       const env::PathMap& paths, env::MessageBoxPort& boxes)
    : preferences_(preferences), serverListFile_(std::move(serverListFile)), paths_(paths), boxes_(boxes) {}

void CreateGalleryModel::ComeUp() {
  Cancelled = true;
  const std::string& folder = preferences_.CreateFolder;
  filePath_ = (folder.empty() ? folder : env::WithTrailingBackslash(folder)) + preferences_.GalleryIndexFileName;
  sourceFolder_ = env::GetFilePath(folder);
  UploadPassword.clear();
  const auto server = PreferredServer(serverListFile_);
  TakeUploadValues(server.value_or(publish::ServerProfile{}));
  if (!server) return FillIn("", "");
  isPasswordHidden_ = !publish::IsAnonymous(*server);
  FillIn(WithSingleSlashes(PublishText(*server)), WithSingleSlashes(UploadText(*server)));
}

void CreateGalleryModel::FillIn(const std::string& publish, const std::string& upload) {
  SetDestinations(publish, upload);
  filledPublishDestination_ = publish;
  filledUploadDestination_ = upload;
}

/// Converts typed text to path text. It may have slashes of either kind, or be a native path.
std::string CreateGalleryModel::Finished(const std::string& typed) const {
  return env::WithBackslashes(paths_.ToTextIfNative(typed));
}

void CreateGalleryModel::LeaveFilePath() {
  std::string& path = filePath_;
  path = Finished(path);
  if (path.find(':') == std::string::npos) path = preferences_.CreateFolder;
  if (path.ends_with(':')) path += "\\index.htm";
  if (path.ends_with('\\')) path += "index.htm";
  // The name of a folder may look as if it had an extension.
  if (env::GetFileExtension(path).empty() || env::IsFolder(paths_.ToNative(path))) path += "\\index.htm";
}

void CreateGalleryModel::BrowseFilePath(FileBrowser& browser) {
  const FileDialogResult chosen = browser.DisplayFileDialog(
      {.open = false,
       .title = "Select Location and File Name for Gallery Index File",
       .initialFolder = preferences_.CreateFolder,
       .fileName = preferences_.GalleryIndexFileName,
       .filter = "All Files (*.*)|*.*|HTML Files (*.htm,*.html)|*.htm;*.html|SHTML Files (*.shtm,*.shtml)|"
                 "*.shtm;*.shtml"});
  if (!chosen.result.empty()) filePath_ = chosen.result;
}

void CreateGalleryModel::LeaveSourceFolder() {
  sourceFolder_ = Finished(sourceFolder_);
}

bool CreateGalleryModel::BrowseSourceFolder(FolderBrowser& browser) {
  const auto folder = browser.BrowseForFolder("Select Source Folder", env::GetFilePath(sourceFolder_));
  if (folder) sourceFolder_ = *folder;
  return folder.has_value();
}

/// Clears the password whenever the destination changes.
void CreateGalleryModel::SetDestinations(const std::string& publish, const std::string& upload) {
  if (publish != publishDestination_ || upload != uploadDestination_) UploadPassword.clear();
  publishDestination_ = publish;
  uploadDestination_ = upload;
}

void CreateGalleryModel::TakeServer(const publish::ServerProfile& profile) {
  TakeUploadValues(profile);
  FillIn(WithSingleSlashes(profile.ServerURL + "/" + profile.IndexPath + "/" + profile.IndexFile),
         WithSingleSlashes(UploadText(profile)));
}

void CreateGalleryModel::TakeUploadValues(const publish::ServerProfile& profile) {
  UploadServer = profile.ServerURL;
  UploadUser = profile.UserName;
  UploadIndexPath = profile.IndexPath;
  UploadIndexFile = profile.IndexFile;
  UploadJumpTo = profile.JumpTo;
  serverOptions_ = publish::OptionsOf(profile);
}

void CreateGalleryModel::LeaveServers(const publish::ServerProfile& profile) {
  isPasswordHidden_ = !publish::IsAnonymous(profile);
  UploadPassword.clear();
}

bool CreateGalleryModel::NothingIsMade() const {
  return Produces() && !order_.CreateImages && !order_.CreateThumbnails && !order_.CreateHTML;
}

std::optional<std::string> CreateGalleryModel::TypedDestination() const {
  const auto unlessFilledIn = [](const std::string& text, const std::string& filledIn) {
    return text == filledIn ? std::nullopt : std::optional(text);
  };
  if (order_.Mode == generation::GenerationMode::Publish)
    return unlessFilledIn(publishDestination_, filledPublishDestination_);
  if (order_.Mode == generation::GenerationMode::Upload)
    return unlessFilledIn(uploadDestination_, filledUploadDestination_);
  return std::nullopt;
}

bool CreateGalleryModel::RefuseDestination() const {
  const auto typed = TypedDestination();
  if (!typed || ReadServerPlace(*typed)) return false;
  boxes_.Critical("Invalid Destination",
                  order_.Mode == generation::GenerationMode::Publish
                      ? "Please give Server, Folder and Index File, such as \"ftp.example.org/gallery/index.htm\"."
                      : "Please give Server and Folder, such as \"ftp.example.org/gallery\".");
  return true;
}

ApplyResult CreateGalleryModel::Apply() {
  if (NothingIsMade()) {
    boxes_.Critical("Cannot create Gallery", "Please make sure you have one of the Options checked!");
    return ApplyResult::Refused;
  }
  if (order_.Mode == generation::GenerationMode::Create) LeaveFilePath();
  if (order_.Mode == generation::GenerationMode::Upload) {
    LeaveSourceFolder();
    if (!NormalizeFolderPath(sourceFolder_, boxes_)) return ApplyResult::NoSourceFolder;
  }
  if (RefuseDestination()) return ApplyResult::NoDestination;
  Cancelled = false;
  return ApplyResult::Done;
}

std::optional<generation::RunOrder> CreateGalleryModel::Order() const {
  if (Cancelled) return std::nullopt;
  generation::RunOrder order = order_;
  order.RemoveUnused = order_.RemoveUnused && CanRemoveUnused();
  if (order.Mode == generation::GenerationMode::Create) {
    generation::SetIndexFile(order, filePath_);
  } else {
    SetServer(order);
  }
  if (order.Mode == generation::GenerationMode::Upload) order.OutputFolder = sourceFolder_;
  return order;
}

/// A destination that was typed takes the place of the host and the path that were filled in. If it names no file for a
/// gallery, uses the usual "index.htm".
void CreateGalleryModel::SetServer(generation::RunOrder& order) const {
  const auto typed = TypedDestination();
  const auto place = typed ? ReadServerPlace(*typed) : std::nullopt;
  order.ServerAddress = place ? place->host : UploadServer;
  order.UserName = UploadUser;
  order.Password = UploadPassword;
  order.BaseDirectory = UploadJumpTo;
  order.ServerOptions = serverOptions_;
  // The accepted certificate is that of the chosen server.
  if (!env::EqualsIgnoringCase(order.ServerAddress, UploadServer)) order.ServerOptions.fingerprint.clear();
  if (order.Mode == generation::GenerationMode::Upload)
    return generation::SetRemoteFolder(order, place ? place->path : UploadIndexPath);
  if (!place) return generation::SetRemoteIndexFile(order, UploadIndexPath, UploadIndexFile);
  generation::SetRemoteIndexFile(order, "", place->path);
  if (order.RemoteIndexFileName.empty()) order.RemoteIndexFileName = "index.htm";
}

}  // namespace vantorium::ui
