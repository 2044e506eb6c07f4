#include "core/generation/CreateGallery.h"

#include "core/ProjectEditor.h"
#include "core/generation/RunForecast.h"
#include "core/generation/RunMessages.h"
#include "env/LaunchCommands.h"
#include "env/OpenFolder.h"
#include "env/RuntimeFailure.h"
#include "env/TempFolder.h"

namespace vantorium::generation {
RunEnd GalleryCreator::CreateGallery(GenerationMode& mode, std::int16_t browserIndex) {
  Repair();
  auto order = mode == GenerationMode::Preview ? RunOrder{.Mode = mode} : environment_.host.AskWhatToCreate();
  if (!order) return RunEnd::NotStarted;
  mode = order->Mode;
  return Start(*std::move(order), browserIndex);
}

RunEnd GalleryCreator::CarryOut(RunOrder order, std::int16_t browserIndex) {
  Repair();
  return Start(std::move(order), browserIndex);
}

void GalleryCreator::Repair() {
  if (preferences_.TempFolderLocation.empty()) preferences_.TempFolderLocation = programFolder_;
  core::NormalizeForOutput(project_.settings, project_.IsModified);
}

RunEnd GalleryCreator::Start(RunOrder order, std::int16_t browserIndex) {
  if (!Prepare(order) || !MayStart(order)) return RunEnd::NotStarted;
  const bool usesTempFolder = order.Mode == GenerationMode::Preview || order.Mode == GenerationMode::Publish;
  const env::TempFolderLock lock(usesTempFolder ? NativeTempFolder() : std::filesystem::path());
  if (usesTempFolder && RefuseTempFolder(lock)) return RunEnd::NotStarted;
  environment_.cancel.Clear();
  environment_.host.EnableTrayIcon(false);
  const RunEnd end = GenerateGallery(project_, order, environment_);
  if (end == RunEnd::Success && order.Mode == GenerationMode::Preview) {
    OpenInBrowser(order.OutputFolder + order.IndexFileName, browserIndex);
  }
  environment_.shell.Beep(env::BeepKind::Information);
  environment_.host.EnableTrayIcon(true);
  if (end == RunEnd::Success) environment_.host.SetStatusText("");
  return end;
}

bool GalleryCreator::Prepare(RunOrder& order) {
  switch (order.Mode) {
    case GenerationMode::Preview:
      if (RefuseEmptyList("You cannot preview a Gallery without Images.")) return false;
      UseTempFolder(order, "index.htm");
      return true;
    case GenerationMode::Create:
      MakeTempFolder();
      preferences_.CreateFolder = order.OutputFolder;
      preferences_.GalleryIndexFileName = order.IndexFileName;
      return !RefuseEmptyList("You cannot create a Gallery without Images.");
    case GenerationMode::Publish:
      PrepareConnection(order.ServerOptions);
      UseTempFolder(order, order.RemoteIndexFileName);
      return !RefuseEmptyList("You cannot upload a Gallery without Images.");
    case GenerationMode::Upload:
      PrepareConnection(order.ServerOptions);
      return !RefuseSource(order.OutputFolder);
  }
  return false;
}

bool GalleryCreator::MayStart(const RunOrder& order) {
  RunForecast forecast(project_, order, environment_);
  return forecast.Found().empty() || environment_.host.MayStart(forecast);
}

void GalleryCreator::UseTempFolder(RunOrder& order, const std::string& indexFileName) {
  MakeTempFolder();
  order.OutputFolder = TempFolder() + "\\";
  order.IndexFileName = indexFileName;
}

void GalleryCreator::PrepareConnection(const publish::FTPOptions& options) {
  if (environment_.ftp == nullptr) return;
  if (environment_.ftp->IsConnected()) environment_.ftp->Disconnect();
  environment_.ftp->Options = options;
}

bool GalleryCreator::RefuseEmptyList(const char* text) {
  if (!project_.images.Empty()) return false;
  environment_.boxes.Critical("No Images", text);
  return true;
}

bool GalleryCreator::RefuseSource(const std::string& folder) {
  const env::PathMap& paths = environment_.files.Paths();
  if (env::CanListFolder(paths.ToNative(folder))) return false;
  environment_.boxes.Critical("File Error", UnableToReadFolder(paths.Surface(folder)));
  return true;
}

std::string GalleryCreator::TempFolder() const {
  return env::TempFolderIn(preferences_.TempFolderLocation);
}

std::filesystem::path GalleryCreator::NativeTempFolder() const {
  return environment_.files.Paths().ToNative(TempFolder()).value_or("");
}

bool GalleryCreator::RefuseTempFolder(const env::TempFolderLock& lock) {
  const std::filesystem::path folder = NativeTempFolder();
  const std::string problem = lock.IsTakenElsewhere()
                                  ? "Another run is using the temporary folder \"" + folder.string() +
                                        "\".  Please wait for its end, or choose another location."
                                  : env::RefusalOfTempFolder(folder);
  if (problem.empty()) return false;
  environment_.boxes.Critical("Directory Error", problem);
  return true;
}

void GalleryCreator::MakeTempFolder() {
  std::ignore = environment_.files.MakePath(TempFolder());
}

/// Captures only the boxes: the failure may be reported long after this run and this object are gone.
void GalleryCreator::OpenInBrowser(const std::string& indexFile, std::int16_t browserIndex) {
  const env::StartFailed tell = [&boxes = environment_.boxes](const env::RuntimeFailure& failure) {
    boxes.Critical("Error", "Error: " + std::to_string(failure.Number()) + "\r\r" + failure.Description());
  };
  try {
    const env::PathMap& paths = environment_.files.Paths();
    env::Launch(browserIndex == 0 ? env::DefaultOpener(indexFile, paths)
                                  : env::ListedBrowser(BrowserLocation(browserIndex), indexFile, paths),
                environment_.shell, tell);
  } catch (const env::RuntimeFailure& failure) {
    tell(failure);
  }
}

std::string GalleryCreator::BrowserLocation(std::int16_t browserIndex) const {
  const auto& browsers = preferences_.Browsers;
  if (browserIndex < 1 || static_cast<std::size_t>(browserIndex) > browsers.size()) {
    throw env::RuntimeFailure(env::FailureKind::SubscriptOutOfRange);
  }
  return browsers[static_cast<std::size_t>(browserIndex) - 1].Location;
}

}  // namespace vantorium::generation
