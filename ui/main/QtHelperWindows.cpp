#include "ui/main/QtHelperWindows.h"

#include "publish/ServerListFile.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/dialogs/frmApplyTheme.h"
#include "ui/dialogs/frmBrowserList.h"
#include "ui/dialogs/frmFileNameSettings.h"
#include "ui/dialogs/frmFrameNameSettings.h"
#include "ui/dialogs/frmMovedFolders.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/dialogs/frmRunWarnings.h"
#include "ui/dialogs/frmTempFolderLocation.h"
#include "ui/files/frmBrowseForImageFolders.h"
#include "ui/files/frmPreview.h"
#include "ui/model/dialogs/MovedFolders.h"
#include "ui/model/dialogs/RunWarningsModel.h"
#include "ui/model/main/MainModel.h"
#include "ui/widgets/ExecDialog.h"

#include <QApplication>

namespace vantorium::ui {
namespace {

/// Brings a window that is hidden or behind others to the front.
void ComeUp(QWidget& window) {
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace

QtHelperWindows::QtHelperWindows(MainModel& model, FieldBinder& binder, QWidget& mainWindow)
    : model_(model), binder_(binder), mainWindow_(mainWindow), splash_(std::make_unique<frmSplash>()) {
  splash_->show();
  const DesktopPorts& ports = model.Ports();
  tray_ = std::make_unique<frmSysTray>(VantoriumSysTrayMenu(), QIcon(":/vantorium/vantorium.svg"));
  descriptions_ = std::make_unique<frmImageDescriptions>(model.CurrentProject(), binder, ports.boxes, &mainWindow);
  create_ = std::make_unique<frmCreateGallery>(
      frmCreateGallery::Parts{model.CurrentPreferences(), publish::ServerListFileName(ports.programFolder), ports.paths,
                              ports.boxes, ports.fileBrowser, ports.folderBrowser},
      &mainWindow);
  info_ = std::make_unique<frmInfo>(&mainWindow);
}

void QtHelperWindows::ShowDescriptions() {
  descriptions_->FollowSelection();
  ComeUp(*descriptions_);
}

bool QtHelperWindows::ShowThemes(ThemeModel& themes) {
  frmApplyTheme dialog(themes, &mainWindow_);
  return ExecDialog(dialog) == QDialog::Accepted;
}

void QtHelperWindows::ShowAbout() {
  if (about_ != nullptr) return ComeUp(*about_);
  frmAbout about(model_.Ports().version, &mainWindow_);
  about_ = &about;
  about.exec();
}

void QtHelperWindows::ShowPreview(const std::string& description, const std::string& file) {
  frmPreview preview(model_.Ports().paths, &mainWindow_);
  preview.SetPicture(description, file, core::CorrectionsOf(model_.CurrentProject().settings));
  preview.exec();
}

void QtHelperWindows::EditFileNames() {
  frmFileNameSettings(binder_, &mainWindow_).exec();
}

void QtHelperWindows::EditFrameNames() {
  frmFrameNameSettings(binder_, &mainWindow_).exec();
}

void QtHelperWindows::SetTempFolderLocation() {
  const DesktopPorts& ports = model_.Ports();
  EditTempFolderLocation(model_.CurrentPreferences(), model_.AppPath(), ports.boxes, ports.files, ports.folderBrowser,
                         &mainWindow_);
}

std::vector<std::string> QtHelperWindows::AskForImageFolders() {
  frmBrowseForImageFolders browser(model_.Ports().paths, model_.CurrentPreferences().ImageSourceFolder, &mainWindow_);
  browser.exec();
  return browser.Cancelled ? std::vector<std::string>{} : browser.Folders();
}

void QtHelperWindows::ShowInfoWindow(const std::string& text) {
  info_->SetText(text);
  info_->show();
}

std::vector<core::MovedFolder> QtHelperWindows::AskForMovedFolders(const std::vector<std::string>& sources) {
  MovedFolders folders(sources, model_.Ports().files);
  // A project that the command line names is opened while only the splash window is visible.
  QWidget* const owner = mainWindow_.isVisible() ? &mainWindow_ : QApplication::activeWindow();
  const bool accepted = frmMovedFolders(folders, model_.Ports().folderBrowser, owner).exec() == QDialog::Accepted;
  return accepted ? folders.Moved() : std::vector<core::MovedFolder>();
}

bool QtHelperWindows::ShowRunWarnings(generation::RunForecast& forecast) {
  RunWarningsModel warnings(forecast, model_.CurrentProject(), model_.Images());
  return frmRunWarnings(warnings, &mainWindow_).exec() == QDialog::Accepted;
}

void QtHelperWindows::ShowBrowserList(BrowserList& list) {
  frmBrowserList(list, model_.Ports().paths, &mainWindow_).exec();
}

std::unique_ptr<publish::ProgressWindow> QtHelperWindows::CreateProgressWindow() {
  auto progress = std::make_unique<frmProgress>(model_.Log(), model_.Cancel(), model_.Ports().shell, model_.AppPath(),
                                                &mainWindow_);
  // Some window managers focus no window of the program when a window above a disabled one closes.
  QObject::connect(progress.get(), &QObject::destroyed, &mainWindow_, &QWidget::activateWindow);
  return progress;
}

void QtHelperWindows::ShowShutdownStep(const std::string& text) {
  if (shutdown_ == nullptr) {
    shutdown_ = std::make_unique<frmShutdown>();
    shutdown_->show();
  }
  shutdown_->ShowStep(text);
}

// The descriptions window is only hidden: the pages still report to it until the main window is destroyed.
void QtHelperWindows::CloseAll() {
  descriptions_->hide();
  create_.reset();
  info_.reset();
  tray_.reset();
  shutdown_.reset();
}

}  // namespace vantorium::ui
