#include "ui/main/frmMain.h"

#include "ui/dialogs/AddBrowserDialog.h"
#include "ui/main/PopupTextMenu.h"
#include "ui/main/SettingsDialogs.h"
#include "ui/main/SettingsPages.h"
#include "ui/main/ViewMenus.h"
#include "ui/main/frmCaptions.h"
#include "ui/main/frmGallery.h"
#include "ui/main/frmImageWrapper.h"
#include "ui/main/frmImages.h"
#include "ui/main/frmPageLinks.h"
#include "ui/main/frmThumbnails.h"
#include "ui/model/main/MainModel.h"
#include "ui/qt/QtColor.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/PlainToolTip.h"
#include "ui/widgets/WheelGuard.h"
#include "ui_frmMain.h"

#include <QCloseEvent>
#include <QToolButton>
#include <QWindow>

namespace vantorium::ui {
namespace {

/// Qt Designer forms have no names for the separators of a menu.
void NameSeparators(const QMenu& menu, const QStringList& names) {
  qsizetype next = 0;
  for (QAction* action : menu.actions()) {
    if (action->isSeparator()) action->setObjectName(names.at(next++));
  }
}

}  // namespace

frmMain::frmMain(MainModel& model)
    : model_(model),
      binder_(model.Editor(), model.Ports().boxes),
      ui_(std::make_unique<Ui::frmMain>()),
      windows_(model, binder_, *this) {
  model_.Attach(*this, windows_);
  ConnectTray();
  model_.ShowStartStep();
  new WheelGuard(this);
  ui_->setupUi(this);
  BuildMenus();
  BuildPages();
  model_.ShowStartStep();
  ConnectCommands();
  ConnectPages();
  model_.ShowStartStep();
  ShowPage(0);
  model_.ShowStartStep();
}

frmMain::~frmMain() = default;

void frmMain::Start(const std::string& commandLine) {
  model_.Start(commandLine);
  windows_.EndStart();
}

void frmMain::BuildMenus() {
  NameSeparators(*ui_->menuFile, {"menuFileSeparator1", "menuFileSeparator2"});
  NameSeparators(*ui_->menuOptions, {"menuOptionsSeparator", "menuOptionsSeparator2"});
  NameSeparators(*ui_->menuHelp, {"menuHelpSeparator1"});
  MakePopupTextMenu(*this);
  auto* viewButton = static_cast<QToolButton*>(ui_->tbMain->widgetForAction(ui_->tbMainView));
  viewMenus_ = new ViewMenus(*ui_->menuActionsView, *ui_->menuActionsViewDefault, *viewButton);
  viewMenus_->setParent(this);
}

void frmMain::BuildPages() {
  const DesktopPorts& ports = model_.Ports();
  galleryPage_ = new frmGallery(binder_);
  imagesPage_ = new frmImages({model_.CurrentProject(), model_.Images(), binder_, ports.boxes, ports.loop, ports.shell,
                               ports.clock, ports.paths, ports.fileBrowser, model_.CurrentPreferences(),
                               [this] { return windows_.AskForImageFolders(); }});
  thumbnailsPage_ = new frmThumbnails(binder_, ports.paths, model_.Colors());
  ui_->tsMain->addTab(galleryPage_, tr("Gallery"));
  ui_->tsMain->addTab(imagesPage_, tr("Images"));
  ui_->tsMain->addTab(new frmImageWrapper(binder_, ports.paths), tr("Image Wrappers"));
  ui_->tsMain->addTab(thumbnailsPage_, tr("Thumbnails"));
  ui_->tsMain->addTab(new frmCaptions(binder_), tr("Captions"));
  ui_->tsMain->addTab(new frmPageLinks(binder_), tr("Page Links"));

  pages_ = new SettingsPages(*this);
  pages_->setParent(this);
  auto* dialogs = new SettingsDialogs({binder_, model_.Colors(), ports, [this] { return model_.Samples(); }}, *this);
  dialogs->setParent(this);
  for (QWidget* control : findChildren<QWidget*>()) {
    if (Qt::mightBeRichText(control->toolTip())) new PlainToolTip(*control);
  }
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void frmMain::ConnectCommands() {
  const auto command = [this](std::initializer_list<QAction*> actions, auto run) {
    for (QAction* action : actions) connect(action, &QAction::triggered, this, run);
  };
  command({ui_->menuFileNew, ui_->tbMainNew}, [this] { model_.NewProject(); });
  command({ui_->menuFileOpen, ui_->tbMainOpen}, [this] { model_.OpenProject(); });
  command({ui_->menuFileSave, ui_->tbMainSave}, [this] { model_.SaveProject(); });
  command({ui_->menuFileSaveAs}, [this] { model_.SaveProjectAs(); });
  command({ui_->menuFileExit}, [this] { close(); });
  command({ui_->menuActionsViewDefault, ui_->tbMainView}, [this] { model_.ViewGallery(0); });
  command({ui_->menuActionsCreate, ui_->tbMainCreate}, [this] { model_.CreateGallery(); });
  command({ui_->menuOptionsAvailableBrowsers}, [this] { EditBrowserList(); });
  command({ui_->menuOptionsSetTempFolderLocation}, [this] { windows_.SetTempFolderLocation(); });
  command({ui_->menuOptionsClearTempFolder}, [this] { model_.ClearTemporaryFolder(); });
  command({ui_->menuOptionsApplyTheme}, [this] { model_.ApplyTheme(); });
  command({ui_->menuHelpOnlineHelp}, [this] { model_.ShowHelp(); });
  command({ui_->menuHelpAbout}, [this] { windows_.ShowAbout(); });
  binder_.Bind(*ui_->menuOptionsUpright, &core::GalleryProject::checkImagesUpright);
  binder_.Bind(*ui_->menuOptionsTrueColors, &core::GalleryProject::checkImagesTrueColors);
  command({ui_->menuOptionsUpright, ui_->menuOptionsTrueColors}, [this] { ShowPreview(); });
  connect(viewMenus_, &ViewMenus::ViewAsked, this, [this](std::int16_t browser) { model_.ViewGallery(browser); });
  connect(viewMenus_, &ViewMenus::ListAsked, this, &frmMain::EditBrowserList);

  // The shortcuts of the commands work in the descriptions window, too.
  for (QAction* action : findChildren<QAction*>()) action->setShortcutContext(Qt::ApplicationShortcut);
}

void frmMain::ConnectPages() {
  connect(ui_->tsMain, &QTabWidget::currentChanged, this, &frmMain::ShowPage);
  connect(&binder_, &FieldBinder::Edited, this, &frmMain::FollowSettings);
  connect(galleryPage_, &frmGallery::FileNamesAsked, this, [this] { windows_.EditFileNames(); });
  connect(galleryPage_, &frmGallery::FrameNamesAsked, this, [this] { windows_.EditFrameNames(); });
  connect(imagesPage_, &frmImages::DescriptionsAsked, this, [this] { windows_.ShowDescriptions(); });
  connect(imagesPage_, &frmImages::CurrentChanged, this, [this] { windows_.Descriptions().FollowSelection(); });
  connect(imagesPage_, &frmImages::ListChanged, this, [this] { model_.ShowCounts(); });
  connect(imagesPage_, &frmImages::FullScreenPreviewAsked, this,
          [this](const std::string& description, const std::string& file) { windows_.ShowPreview(description, file); });
}

void frmMain::ConnectTray() {
  frmSysTray* tray = &windows_.Tray();
  // Queued, to run after the menu's own work: closing the program destroys the tray with its menu.
  connect(
      tray, &frmSysTray::MenuClick, this, [this](int /*index*/, const QString& key) { OnTrayMenu(key); },
      Qt::QueuedConnection);
  connect(tray, &frmSysTray::SysTrayDoubleClick, this, &frmMain::BringToFront);
  connect(tray, &frmSysTray::SysTrayMouseDown, this, [tray](Qt::MouseButton button) {
    if (button == Qt::RightButton) tray->ShowMenu();
  });
}

void frmMain::OnTrayMenu(const QString& key) {
  if (windows_.IsStarting()) return;  // the window is not ready
  if (key == "vantorium") BringToFront();
  if (!isEnabled()) return;  // busy; a window opened here would hold up that work
  if (key == "help") model_.ShowHelp();
  if (key == "about") windows_.ShowAbout();
  if (key == "close") close();
}

void frmMain::BringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void frmMain::EditBrowserList() {
  AddBrowserDialog entry(model_.Ports().fileBrowser, model_.Ports().paths, model_.AppPath());
  model_.EditBrowserList(entry);
}

void frmMain::ShowPage(int index) {
  for (int i = 0; i < ui_->tsMain->count(); ++i) ui_->tsMain->widget(i)->setEnabled(i == index);
}

/// Updates what depends on the settings.
void frmMain::FollowSettings() {
  pages_->Refresh(binder_.Project());
  model_.ShowPageCount();
}

void frmMain::closeEvent(QCloseEvent* event) {
  event->ignore();
  // The tray can ask the window to close even during a run or while a dialog is open.
  if (!isEnabled() || QApplication::activeModalWidget() != nullptr) return;
  if (!model_.ShutDown()) return;
  event->accept();
  emit Closed();
}

void frmMain::ShowTitle(const std::string& text) {
  setWindowTitle(ToQt(text));
}

void frmMain::ShowStatus(const std::string& text) {
  ui_->sbMain->ShowStatus(text);
}

void frmMain::ShowImageCount(const std::string& text) {
  ui_->sbMain->ShowImageCount(text);
}

void frmMain::ShowPageCount(const std::string& text) {
  thumbnailsPage_->ShowPageCount(text);
}

void frmMain::ShowBrowserMenus(const BrowserMenus& menus) {
  viewMenus_->Show(menus);
}

void frmMain::ShowBusyPointer(bool busy) {
  busy ? setCursor(Qt::WaitCursor) : unsetCursor();
  KeepPointerWhileDisabled();
}

/// Qt drops the pointer of a window while it is disabled. No other window of the program uses this window's pointer.
void frmMain::KeepPointerWhileDisabled() {
  if (!isEnabled() && windowHandle() != nullptr) windowHandle()->setCursor(cursor());
}

void frmMain::EnableMainWindow(bool enabled) {
  enabled ? focus_.Enable(*this) : focus_.Disable(*this, windows_.Descriptions());
  windows_.KeepInfoWindowEnabled();
  KeepPointerWhileDisabled();
}

void frmMain::ShowSettings() {
  binder_.Refresh();
  FollowSettings();
}

void frmMain::ShowImages() {
  imagesPage_->FollowProject();
  imagesPage_->RefreshList();
}

void frmMain::ShowPreview() {
  imagesPage_->RefreshPreview();
}

void frmMain::ScrollIntoView(std::size_t position) {
  imagesPage_->ScrollIntoView(position);
}

void frmMain::SelectFirstTab() {
  ui_->tsMain->setCurrentIndex(0);
}

void frmMain::FocusTitleField() {
  galleryPage_->FocusTitle();
}

env::CustomColors frmMain::SystemColors() const {
  env::CustomColors colors = {};
  for (std::size_t i = 0; i < colors.size(); ++i) {
    colors[i] = FromQt(palette().color(static_cast<QPalette::ColorRole>(i)));
  }
  return colors;
}

}  // namespace vantorium::ui
