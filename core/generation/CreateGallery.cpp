#include "core/generation/CreateGallery.h"

#include "core/ProjectEditor.h"
#include "env/LaunchCommands.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "env/TempFolder.h"
#include "publish/FTPPath.h"

namespace vantorium {
namespace {

/// Returns `path` through its last separator. Unlike GetFilePath it keeps a leading separator.
std::string FolderPart(const std::string& path) {
  return path.substr(0, path.size() - GetFileName(path).size());
}

/// Returns a remote folder to which a name can be appended.
std::string WithTrailingSeparator(const std::string& folder) {
  const bool needsOne = !folder.empty() && !folder.ends_with('\\') && !folder.ends_with('/');
  return needsOne ? folder + '/' : folder;
}

void TakeSwitches(const CreateChoice& choice, RunArguments& arguments) {
  arguments.CreateImages = choice.CreateImages;
  arguments.CreateThumbnails = choice.CreateThumbnails;
  arguments.CreateHTML = choice.CreateHTMLFiles;
  arguments.Overwrite = choice.Overwrite;
}

}  // namespace

RunEnd GalleryCreator::CreateGallery(GenerationMode& mode, std::int16_t browserIndex) {
  if (preferences_.TempFolderLocation.empty()) preferences_.TempFolderLocation = programFolder_;
  NormalizeForOutput(project_.settings, project_.IsModified);
  RunArguments arguments;
  if (!Prepare(mode, arguments)) return RunEnd::NotStarted;
  arguments.Mode = mode;
  const bool usesTempFolder = mode == GenerationMode::Preview || mode == GenerationMode::Publish;
  const TempFolderLock lock(usesTempFolder ? NativeTempFolder() : std::filesystem::path());
  if (usesTempFolder && RefuseTempFolder(lock)) return RunEnd::NotStarted;
  const RunEnd end = Run(arguments);
  if (end == RunEnd::Success && mode == GenerationMode::Preview) {
    OpenInBrowser(arguments.OutputFolder + arguments.IndexFileName, browserIndex);
  }
  environment_.shell.Beep(BeepKind::Information);
  environment_.host.EnableTrayIcon(true);
  environment_.host.ShowBusyPointer(false);
  environment_.host.ShowStatus("");
  return end;
}

bool GalleryCreator::Prepare(GenerationMode& mode, RunArguments& arguments) {
  if (mode == GenerationMode::Preview) return PreparePreview(arguments);
  const CreateChoice choice = environment_.host.AskWhatToCreate();
  TakeSwitches(choice, arguments);
  switch (choice.option) {
    case CreateChoice::Option::Cancelled:
      return false;
    case CreateChoice::Option::CreateGallery:
      return PrepareCreate(choice, arguments);
    case CreateChoice::Option::Publish:
      mode = GenerationMode::Publish;
      return PreparePublish(choice, arguments);
    case CreateChoice::Option::UploadFolder:
      mode = GenerationMode::Upload;
      PrepareUpload(choice, arguments);
      return true;
  }
  return false;
}

bool GalleryCreator::PreparePreview(RunArguments& arguments) {
  if (RefuseEmptyList("You cannot preview a Gallery without Images.")) return false;
  MakeTempFolder();
  arguments.OutputFolder = TempFolder() + "\\";
  arguments.IndexFileName = "index.htm";
  return true;
}

bool GalleryCreator::PrepareCreate(const CreateChoice& choice, RunArguments& arguments) {
  MakeTempFolder();
  arguments.IndexFileName = GetFileName(choice.FilePath);
  arguments.OutputFolder = FolderPart(choice.FilePath);
  preferences_.CreateFolder = arguments.OutputFolder;
  preferences_.GalleryIndexFileName = arguments.IndexFileName;
  return !RefuseEmptyList("You cannot create a Gallery without Images.");
}

bool GalleryCreator::PreparePublish(const CreateChoice& choice, RunArguments& arguments) {
  TakeServer(choice, arguments);
  const std::string remote = WithTrailingSeparator(choice.UploadIndexPath) + choice.UploadIndexFile;
  arguments.RemoteFolder = FTPGetFilePath(remote);
  arguments.RemoteIndexFileName = FTPGetFileName(remote);
  MakeTempFolder();
  arguments.OutputFolder = TempFolder() + "\\";
  arguments.IndexFileName = arguments.RemoteIndexFileName;
  return !RefuseEmptyList("You cannot upload a Gallery without Images.");
}

void GalleryCreator::PrepareUpload(const CreateChoice& choice, RunArguments& arguments) {
  TakeServer(choice, arguments);
  arguments.OutputFolder = FolderPart(choice.UploadSourceFolder);
  arguments.RemoteFolder = FTPGetFilePath(WithTrailingSeparator(choice.UploadIndexPath));
}

void GalleryCreator::TakeServer(const CreateChoice& choice, RunArguments& arguments) {
  if (environment_.ftp != nullptr && environment_.ftp->IsConnected()) environment_.ftp->Disconnect();
  arguments.ServerAddress = choice.UploadServer;
  arguments.Port = choice.UploadPort;
  arguments.UserName = choice.UploadUser;
  arguments.Password = choice.UploadPassword;
  arguments.BaseDirectory = choice.UploadJumpTo;
}

bool GalleryCreator::RefuseEmptyList(const char* text) {
  if (!project_.images.Empty()) return false;
  environment_.boxes.Critical("No Images", text);
  return true;
}

RunEnd GalleryCreator::Run(const RunArguments& arguments) {
  environment_.cancel.Clear();
  environment_.host.EnableTrayIcon(false);
  return GenerateGallery(project_, arguments, environment_);
}

std::string GalleryCreator::TempFolder() const {
  return TempFolderIn(preferences_.TempFolderLocation);
}

std::filesystem::path GalleryCreator::NativeTempFolder() const {
  return environment_.files.Paths().ToNative(TempFolder()).value_or("");
}

bool GalleryCreator::RefuseTempFolder(const TempFolderLock& lock) {
  const std::filesystem::path folder = NativeTempFolder();
  const std::string problem = lock.IsTakenElsewhere()
                                  ? "Another run is using the temporary folder \"" + folder.string() +
                                        "\".  Please wait for its end, or choose another location."
                                  : RefusalOfTempFolder(folder);
  if (problem.empty()) return false;
  environment_.boxes.Critical("Directory Error", problem);
  return true;
}

void GalleryCreator::MakeTempFolder() {
  std::ignore = environment_.files.MakePath(TempFolder());
}

/// Captures only the boxes: the failure may be reported long after this run and this object are gone.
void GalleryCreator::OpenInBrowser(const std::string& indexFile, std::int16_t browserIndex) {
  const StartFailed tell = [&boxes = environment_.boxes](const RuntimeFailure& failure) {
    boxes.Critical("Error", "Error: " + std::to_string(failure.Number()) + "\r\r" + failure.Description());
  };
  try {
    const PathMap& paths = environment_.files.Paths();
    Launch(browserIndex == 0 ? DefaultOpener(indexFile, paths)
                             : ListedBrowser(BrowserLocation(browserIndex), indexFile, paths),
           environment_.shell, tell);
  } catch (const RuntimeFailure& failure) {
    tell(failure);
  }
}

std::string GalleryCreator::BrowserLocation(std::int16_t browserIndex) const {
  const auto& browsers = preferences_.Browsers;
  if (browserIndex < 1 || static_cast<std::size_t>(browserIndex) > browsers.size()) {
    throw RuntimeFailure(FailureKind::SubscriptOutOfRange);
  }
  return browsers[static_cast<std::size_t>(browserIndex) - 1].Location;
}

}  // namespace vantorium
