// The commands of the menus, the tool bar and the tray.
#include "core/generation/CreateGallery.h"
#include "env/RuntimeFailure.h"
#include "env/TempFolder.h"
#include "ui/dialogs/AddBrowserDialog.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/dialogs/frmApplyTheme.h"
#include "ui/dialogs/frmBrowserList.h"
#include "ui/dialogs/frmCreateGallery.h"
#include "ui/dialogs/frmImageDescriptions.h"
#include "ui/dialogs/frmTempFolderLocation.h"
#include "ui/files/frmBrowseForImageFolders.h"
#include "ui/main/frmImages.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmMain.h"
#include "ui/main/frmShutdown.h"
#include "ui/main/frmSysTray.h"
#include "ui/model/dialogs/ThemeModel.h"
#include "ui/qt/QtText.h"
#include "ui_frmMain.h"

#include <QCloseEvent>
#include <QMenu>

namespace vantorium {
namespace {

/// The caller may be an entry of this menu, so the entries live until it has been handled.
void RemoveEntries(QMenu& menu) {
  for (QAction* entry : menu.actions()) {
    menu.removeAction(entry);
    if (entry->parent() == &menu) entry->deleteLater();
  }
}

}  // namespace

// The descriptions window stores its placements only when it is closed. So each command that saves or generates stores
// them first, also if it saves because the user leaves the project for another.
void frmMain::NewProject() {
  descriptions_->StorePlacings();
  session_.NewProject();
  ShowProject();
}

void frmMain::OpenProject() {
  descriptions_->StorePlacings();
  session_.OpenProject();
  ShowProject();
}

void frmMain::SaveProject() {
  descriptions_->StorePlacings();
  session_.SaveProject();
  ShowSettings();
}

void frmMain::SaveProjectAs() {
  descriptions_->StorePlacings();
  session_.SaveProjectAs();
  ShowSettings();
}

void frmMain::ViewInBrowser(std::int16_t browserIndex) {
  RunCreateGallery(GenerationMode::Preview, browserIndex);
}

void frmMain::RunCreateGallery(GenerationMode mode, std::int16_t browserIndex) {
  descriptions_->StorePlacings();
  GalleryCreator creator(project_, preferences_, appPath_,
                         {*this, ports_.boxes, ports_.loop, ports_.clock, ports_.shell, ports_.files, ports_.formats,
                          cancel_, ports_.screen, ports_.texts, &ftp_, ports_.jobs});
  creator.CreateGallery(mode, browserIndex);
  ShowSettings();
}

void frmMain::EditBrowserList() {
  AddBrowserDialog entry(ports_.fileBrowser, ports_.paths, appPath_);
  std::ignore = EditBrowsers(preferences_.Browsers, preferencesFile_, *this, entry, ports_.boxes);
}

void frmMain::ShowBrowserList(BrowserList& list) {
  frmBrowserList(list, this).exec();
}

void frmMain::ShowBrowserMenus(const BrowserMenus& menus) {
  for (QMenu* menu : {ui_->menuActionsView, findChild<QMenu*>("tbMainViewDropDown")}) {
    RemoveEntries(*menu);
    AddBrowserActions(*menu, menus);
  }
}

void frmMain::AddBrowserActions(QMenu& menu, const BrowserMenus& menus) {
  for (std::size_t i = 0; i < menus.DropDown.size(); ++i) {
    const BrowserMenuEntry& entry = menus.DropDown[i];
    if (entry.IsSeparator()) {
      menu.addSeparator();
    } else if (entry.Key == "default" && &menu == ui_->menuActionsView) {
      menu.addAction(ui_->menuActionsViewDefault);
    } else {
      const BrowserClick click = DropDownClick(kViewButton, entry.Key, static_cast<std::int16_t>(i + 1));
      QAction* action = menu.addAction(WithoutMnemonics(entry.Text), this, [this, click] {
        if (click.kind == BrowserClick::Kind::View) ViewInBrowser(click.BrowserIndex);
        if (click.kind == BrowserClick::Kind::List) EditBrowserList();
      });
      const bool isArray = &menu == ui_->menuActionsView && click.kind == BrowserClick::Kind::View;
      action->setObjectName(isArray ? "menuActionsViewBrowser" + QString::number(click.BrowserIndex) : ToQt(entry.Key));
    }
  }
}

void frmMain::SetTempFolderLocation() {
  EditTempFolderLocation(preferences_, appPath_, ports_.boxes, ports_.files, ports_.folderBrowser, this);
}

void frmMain::ClearTemporaryFolder() {
  ShowBusyPointer(true);
  EnableMainWindow(false);
  ShowInfoWindow("Please wait... Clearing Temporary Folder.");
  ports_.loop.Turn();
  ClearTempFolder(preferences_.TempFolderLocation, ports_.files, ports_.loop);
  EnableMainWindow(true);
  HideInfoWindow();
  ShowBusyPointer(false);
  ports_.loop.Turn();
}

void frmMain::ApplyTheme() {
  descriptions_->StorePlacings();
  std::vector<ThemeFile> themes = FindThemes(ports_.bundled);
  if (themes.empty()) {
    ports_.boxes.Critical("File Error", "The themes cannot be found.");
    return;
  }
  ThemeModel model(std::move(themes), project_, ports_.paths, ports_.boxes, ports_.loop);
  if (frmApplyTheme(model, this).exec() == QDialog::Accepted) ShowProject();
}

void frmMain::ShowHelp() {
  const auto help = ports_.bundled.Find("help/index.html");
  if (!help) {
    ports_.boxes.Critical("File Error", "The Help File cannot be found.");
    return;
  }
  try {
    ports_.shell.OpenFile(ports_.paths.ToText(*help));
  } catch (const RuntimeFailure& failure) {
    ports_.boxes.Critical("File Error", failure.Description());
  }
}

void frmMain::ShowAbout() {
  if (auto* about = findChild<frmAbout*>()) {  // the tray menu works while it is open
    about->raise();
    return about->activateWindow();
  }
  frmAbout(ports_.version, this).exec();
}

void frmMain::BringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void frmMain::OnTrayMenu(const std::string& key) {
  if (splash_) return;  // the window is not ready
  if (key == "vantorium") BringToFront();
  if (!isEnabled()) return;  // busy; a window opened here would hold up that work
  if (key == "help") ShowHelp();
  if (key == "about") ShowAbout();
  if (key == "close") close();
}

void frmMain::ShowDescriptions() {
  descriptions_->FollowSelection();
  descriptions_->show();
  descriptions_->raise();
  descriptions_->activateWindow();
}

SampleSources frmMain::Samples() const {
  SampleSources sources;
  if (project_.images.Current() != 0)
    sources.selectedFile = project_.images.Entry(project_.images.Current()).SourcePath;
  sources.defaultSamples.push_back(appPath_ + "\\preview.jpg");
  if (const auto sample = ports_.bundled.Find("preview.jpg")) {
    sources.defaultSamples.push_back(ports_.paths.ToText(*sample));
  }
  sources.tempFolderLocation = preferences_.TempFolderLocation;
  return sources;
}

std::vector<std::string> frmMain::AskForImageFolders() {
  frmBrowseForImageFolders browser(ports_.paths, preferences_.ImageSourceFolder, this);
  browser.exec();
  return browser.Cancelled ? std::vector<std::string>{} : browser.Folders();
}

void frmMain::closeEvent(QCloseEvent* event) {
  event->ignore();
  // The tray can ask the window to close even during a run or while a dialog is open.
  if (!isEnabled() || QApplication::activeModalWidget() != nullptr) return;
  descriptions_->StorePlacings();
  if (!session_.MayLeaveProject()) return;
  ShutDown();
  event->accept();
  emit Closed();
}

void frmMain::ShutDown() {
  frmShutdown shutdown;
  shutdown.show();
  const auto step = [&](const char* text) {
    shutdown.ShowStep(text);
    ports_.loop.Turn();
  };
  step("Saving Preferences");
  preferences_.ProjectFolder = project_.LastProjectFolder;
  WritePreferences(preferences_, preferencesFile_);
  ShowBusyPointer(true);
  step("Clearing Project");
  project_.images.Clear();
  imagesPage_->RefreshList();
  EnableMainWindow(false);
  if (preferences_.TempFolderAutoClear == 1) {
    step("Clearing Temporary Folder");
    ClearTempFolder(preferences_.TempFolderLocation, ports_.files, ports_.loop);
  }
  EnableMainWindow(true);
  step("Cleanup");
  descriptions_->hide();
  create_.reset();
  info_.reset();
  tray_.reset();
  ShowBusyPointer(false);
}

}  // namespace vantorium
