#include "ui/model/main/MainModel.h"

#include "core/generation/CreateGallery.h"
#include "env/ProgramFolder.h"
#include "env/RuntimeFailure.h"
#include "env/TempFolder.h"
#include "publish/AsioFTPSocket.h"
#include "publish/ServerListFile.h"
#include "ui/model/dialogs/ThemeModel.h"

namespace vantorium::ui {

MainModel::MainModel(const DesktopPorts& ports)
    : ports_(ports),
      appPath_(env::GetAppPath(ports.programFolder, ports.paths)),
      preferencesFile_(env::GetINIFileName(ports.programFolder)),
      colors_(ports.dialogs),
      host_(project_, colors_, ports.ftpPort),
      images_(project_, ports.files, ports.boxes, host_),
      projectDialog_(ports.fileBrowser),
      session_(project_, images_, {ports.paths, ports.boxes, projectDialog_, host_, ports.loop}),
      log_(ports.programFolder, ports.clock, ports.boxes),
      cancel_(ports.boxes),
      ftp_(std::make_unique<publish::AsioFTPSocket>(ports.loop), std::make_unique<publish::AsioFTPSocket>(ports.loop),
           ports.paths, ports.boxes, ports.loop, cancel_),
      certificates_(publish::ServerListFileName(ports.programFolder), ports.boxes) {
  ftp_.Certificates = &certificates_;
  cancel_.OnCancel([this] { ftp_.FTPCancelData(); });
}

void MainModel::ShowStartStep() {
  host_.Windows().ShowStartStep();
  ports_.loop.Turn();
}

void MainModel::Start(const std::string& commandLine) {
  if (const std::string problem = env::ProblemOfPreferences(preferencesFile_); !problem.empty()) {
    ports_.boxes.Critical("File Error", problem);
  }
  preferences_ = env::ReadPreferences(preferencesFile_, appPath_, ports_.files);
  project_.LastProjectFolder = preferences_.ProjectFolder;
  ShowStartStep();
  host_.ShowBrowserMenus(RebuildBrowserMenus(preferences_.Browsers));
  ShowStartStep();
  project_.IsModified = false;
  project_.IsPristine = false;
  session_.NewProject();
  session_.OpenProjectFromCommandLine(commandLine);
  ShowProject();
  ShowStartStep();
}

/// Shows everything that belongs to the project.
void MainModel::ShowProject() {
  host_.View().ShowSettings();
  host_.View().ShowImages();
  host_.RefreshTitleBar();
  host_.RefreshPreview();
  host_.RefreshCounts();
}

// The descriptions window stores its placements only when it is closed. So each command that saves or generates stores
// them first, also if it saves because the user leaves the project for another.
void MainModel::NewProject() {
  host_.Windows().StorePlacings();
  session_.NewProject();
  ShowProject();
}

void MainModel::OpenProject() {
  host_.Windows().StorePlacings();
  session_.OpenProject();
  ShowProject();
}

// A save and a run repair empty settings, so both show the settings afterwards.
void MainModel::SaveProject() {
  host_.Windows().StorePlacings();
  session_.SaveProject();
  host_.View().ShowSettings();
}

void MainModel::SaveProjectAs() {
  host_.Windows().StorePlacings();
  session_.SaveProjectAs();
  host_.View().ShowSettings();
}

void MainModel::ViewGallery(std::int16_t browserIndex) {
  Run(generation::GenerationMode::Preview, browserIndex);
}

void MainModel::CreateGallery() {
  Run(generation::GenerationMode::Create, 0);
}

void MainModel::Run(generation::GenerationMode mode, std::int16_t browserIndex) {
  host_.Windows().StorePlacings();
  generation::GalleryCreator creator(
      project_, preferences_, appPath_,
      {static_cast<const core::Ports&>(ports_), host_, cancel_, &ftp_, ports_.cacheFolder});
  creator.CreateGallery(mode, browserIndex);
  host_.View().ShowSettings();
}

void MainModel::EditBrowserList(BrowserEntryDialog& entry) {
  std::ignore = EditBrowsers(preferences_.Browsers, preferencesFile_, host_, entry, ports_.boxes);
}

void MainModel::ClearTemporaryFolder() {
  host_.ShowBusyPointer(true);
  host_.EnableMainWindow(false);
  host_.ShowInfoWindow("Please wait... Clearing Temporary Folder.");
  ports_.loop.Turn();
  env::ClearTempFolder(preferences_.TempFolderLocation, ports_.files, ports_.loop);
  host_.EnableMainWindow(true);
  host_.HideInfoWindow();
  host_.ShowBusyPointer(false);
  ports_.loop.Turn();
}

void MainModel::ApplyTheme() {
  host_.Windows().StorePlacings();
  std::vector<core::ThemeFile> themes = core::FindThemes(ports_.bundled);
  if (themes.empty()) {
    ports_.boxes.Critical("File Error", "The themes cannot be found.");
    return;
  }
  ThemeModel theme(std::move(themes), project_, ports_.paths, ports_.boxes, ports_.loop);
  if (host_.Windows().ShowThemes(theme)) ShowProject();
}

void MainModel::ShowHelp() {
  const auto help = ports_.bundled.Find("help/index.html");
  if (!help) {
    ports_.boxes.Critical("File Error", "The Help File cannot be found.");
    return;
  }
  try {
    ports_.shell.OpenFile(ports_.paths.ToText(*help));
  } catch (const env::RuntimeFailure& failure) {
    ports_.boxes.Critical("File Error", failure.Description());
  }
}

bool MainModel::ShutDown() {
  host_.Windows().StorePlacings();
  if (!session_.MayLeaveProject()) return false;
  CleanUp();
  return true;
}

void MainModel::CleanUp() {
  ShowShutdownStep("Saving Preferences");
  preferences_.ProjectFolder = project_.LastProjectFolder;
  env::WritePreferences(preferences_, preferencesFile_);
  host_.ShowBusyPointer(true);
  ShowShutdownStep("Clearing Project");
  project_.images.Clear();
  host_.View().ShowImages();
  host_.EnableMainWindow(false);
  if (core::IsOn(preferences_.TempFolderAutoClear)) {
    ShowShutdownStep("Clearing Temporary Folder");
    env::ClearTempFolder(preferences_.TempFolderLocation, ports_.files, ports_.loop);
  }
  host_.EnableMainWindow(true);
  ShowShutdownStep("Cleanup");
  host_.Windows().CloseAll();
  host_.ShowBusyPointer(false);
}

void MainModel::ShowShutdownStep(const char* text) {
  host_.Windows().ShowShutdownStep(text);
  ports_.loop.Turn();
}

SampleSources MainModel::Samples() const {
  SampleSources sources;
  const core::ImageList& images = project_.images;
  if (images.Current() != 0) sources.selectedFile = images.Entry(images.Current()).SourcePath;
  sources.defaultSamples.push_back(appPath_ + "\\preview.jpg");
  if (const auto sample = ports_.bundled.Find("preview.jpg")) {
    sources.defaultSamples.push_back(ports_.paths.ToText(*sample));
  }
  sources.tempFolderLocation = preferences_.TempFolderLocation;
  sources.corrections = core::CorrectionsOf(project_.settings);
  return sources;
}

}  // namespace vantorium::ui
