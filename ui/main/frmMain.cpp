#include "ui/main/frmMain.h"

#include "env/ProgramFolder.h"
#include "publish/AsioFTPSocket.h"
#include "publish/ServerListFile.h"
#include "ui/dialogs/frmCreateGallery.h"
#include "ui/dialogs/frmFileNameSettings.h"
#include "ui/dialogs/frmFrameNameSettings.h"
#include "ui/dialogs/frmImageDescriptions.h"
#include "ui/files/frmPreview.h"
#include "ui/main/PopupTextMenu.h"
#include "ui/main/SettingsDialogs.h"
#include "ui/main/SettingsPages.h"
#include "ui/main/frmCaptions.h"
#include "ui/main/frmGallery.h"
#include "ui/main/frmImageWrapper.h"
#include "ui/main/frmImages.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmPageLinks.h"
#include "ui/main/frmSplash.h"
#include "ui/main/frmSysTray.h"
#include "ui/main/frmThumbnails.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/PlainToolTip.h"
#include "ui/widgets/WheelGuard.h"
#include "ui_frmMain.h"

#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

namespace vantorium {
namespace {

/// Qt Designer forms have no names for the separators of a menu.
void NameSeparators(const QMenu& menu, const QStringList& names) {
  qsizetype next = 0;
  for (QAction* action : menu.actions()) {
    if (action->isSeparator()) action->setObjectName(names.at(next++));
  }
}

}  // namespace

frmMain::frmMain(const DesktopPorts& ports)
    : ports_(ports),
      appPath_(GetAppPath(ports.programFolder, ports.paths)),
      preferencesFile_(GetINIFileName(ports.programFolder)),
      session_(project_, images_, {ports.paths, ports.boxes, projectDialog_, *this, ports.loop}),
      log_(ports.programFolder, ports.clock, ports.boxes),
      ftp_(std::make_unique<AsioFTPSocket>(ports.loop), std::make_unique<AsioFTPSocket>(ports.loop), ports.paths,
           ports.boxes, ports.loop, cancel_),
      ui_(std::make_unique<Ui::frmMain>()),
      splash_(std::make_unique<frmSplash>()) {
  splash_->show();
  cancel_.OnCancel([this] { ftp_.FTPCancelData(); });
  BuildTray();
  Step();
  new WheelGuard(this);
  ui_->setupUi(this);
  BuildMenus();
  BuildPages();
  Step();
  ConnectCommands();
  Step();
}

// Destroys the windows before the project that they show; as mere children they would be destroyed after it.
frmMain::~frmMain() {
  delete descriptions_;
  delete ui_->frmMainPages;
}

/// Reports that one stage of the start is done.
void frmMain::Step() {
  splash_->Step();
  ports_.loop.Turn();
}

void frmMain::BuildTray() {
  tray_ = std::make_unique<frmSysTray>(VantoriumSysTrayMenu(), QIcon(":/vantorium/vantorium.svg"));
  // Queued, to run after the menu's own work: closing the program destroys the tray with its menu.
  connect(
      tray_.get(), &frmSysTray::MenuClick, this, [this](int /*index*/, const QString& key) { OnTrayMenu(FromQt(key)); },
      Qt::QueuedConnection);
  connect(tray_.get(), &frmSysTray::SysTrayDoubleClick, this, &frmMain::BringToFront);
  connect(tray_.get(), &frmSysTray::SysTrayMouseDown, this, [this](Qt::MouseButton button) {
    if (button == Qt::RightButton) tray_->ShowMenu();
  });
}

void frmMain::BuildPages() {
  imagesPage_ =
      new frmImages({project_, images_, binder_, ports_.boxes, ports_.loop, ports_.shell, ports_.clock, ports_.paths,
                     ports_.fileBrowser, preferences_, [this] { return AskForImageFolders(); }});
  ui_->tsMain->addTab(new frmGallery(binder_), tr("Gallery"));
  ui_->tsMain->addTab(imagesPage_, tr("Images"));
  ui_->tsMain->addTab(new frmImageWrapper(binder_, ports_.paths), tr("Image Wrappers"));
  ui_->tsMain->addTab(new frmThumbnails(binder_, ports_.paths, colors_), tr("Thumbnails"));
  ui_->tsMain->addTab(new frmCaptions(binder_), tr("Captions"));
  ui_->tsMain->addTab(new frmPageLinks(binder_), tr("Page Links"));
  connect(ui_->tsMain, &QTabWidget::currentChanged, this, &frmMain::ShowPage);

  statusText_ = new QLabel;
  statusText_->setObjectName("sbMainText");
  statusText_->setTextFormat(Qt::PlainText);
  imageCount_ = new QLabel;
  imageCount_->setObjectName("sbMainCount");
  imageCount_->setContentsMargins(0, 0, style()->pixelMetric(QStyle::PM_LayoutRightMargin), 0);
  ui_->sbMain->addWidget(statusText_, 1);
  ui_->sbMain->addPermanentWidget(imageCount_);
  statusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long text must not widen the window

  pages_ = new SettingsPages(*this);
  pages_->setParent(this);
  auto* dialogs = new SettingsDialogs({binder_, colors_, ports_, [this] { return Samples(); }}, *this);
  dialogs->setParent(this);
  descriptions_ = new frmImageDescriptions(project_, binder_, ports_.boxes, this);
  create_ = std::make_unique<frmCreateGallery>(
      frmCreateGallery::Parts{preferences_, ServerListFileName(ports_.programFolder), ports_.paths, ports_.boxes,
                              ports_.fileBrowser, ports_.folderBrowser},
      this);
  info_ = std::make_unique<frmInfo>(this);
  for (QWidget* control : findChildren<QWidget*>()) {
    if (Qt::mightBeRichText(control->toolTip())) new PlainToolTip(*control);
  }
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void frmMain::BuildMenus() {
  NameSeparators(*ui_->menuFile, {"menuFileSeparator1", "menuFileSeparator2"});
  NameSeparators(*ui_->menuOptions, {"menuOptionsSeparator", "menuOptionsSeparator2"});
  NameSeparators(*ui_->menuHelp, {"menuHelpSeparator1"});
  MakePopupTextMenu(*this);
  auto* view = static_cast<QToolButton*>(ui_->tbMain->widgetForAction(ui_->tbMainView));
  auto* dropDown = new QMenu(view);
  dropDown->setObjectName("tbMainViewDropDown");
  view->setMenu(dropDown);
  view->setPopupMode(QToolButton::MenuButtonPopup);
}

void frmMain::ConnectCommands() {
  const auto command = [this](std::initializer_list<QAction*> actions, auto run) {
    for (QAction* action : actions) connect(action, &QAction::triggered, this, run);
  };
  command({ui_->menuFileNew, ui_->tbMainNew}, [this] { NewProject(); });
  command({ui_->menuFileOpen, ui_->tbMainOpen}, [this] { OpenProject(); });
  command({ui_->menuFileSave, ui_->tbMainSave}, [this] { SaveProject(); });
  command({ui_->menuFileSaveAs}, [this] { SaveProjectAs(); });
  command({ui_->menuFileExit}, [this] { close(); });
  command({ui_->menuActionsViewDefault, ui_->tbMainView}, [this] { ViewInBrowser(0); });
  command({ui_->menuActionsCreate, ui_->tbMainCreate}, [this] { RunCreateGallery(GenerationMode::Create, 0); });
  command({ui_->menuOptionsAvailableBrowsers}, [this] { EditBrowserList(); });
  command({ui_->menuOptionsSetTempFolderLocation}, [this] { SetTempFolderLocation(); });
  command({ui_->menuOptionsClearTempFolder}, [this] { ClearTemporaryFolder(); });
  command({ui_->menuOptionsApplyTheme}, [this] { ApplyTheme(); });
  command({ui_->menuHelpOnlineHelp}, [this] { ShowHelp(); });
  command({ui_->menuHelpAbout}, [this] { ShowAbout(); });

  // The shortcuts of the commands work in the descriptions window, too.
  for (QAction* action : findChildren<QAction*>()) action->setShortcutContext(Qt::ApplicationShortcut);

  const auto button = [this](const char* name, auto run) {
    connect(findChild<QAbstractButton*>(name), &QAbstractButton::clicked, this, run);
  };
  button("btnGalleryFileNameSettings", [this] { frmFileNameSettings(binder_, this).exec(); });
  button("btnGalleryMultiFrameNames", [this] { frmFrameNameSettings(binder_, this).exec(); });
  button("btnGallerySingleFrameNames", [this] { frmFrameNameSettings(binder_, this).exec(); });
  button("btnImagesDescriptions", [this] { ShowDescriptions(); });

  connect(&binder_, &FieldBinder::Edited, this, &frmMain::FollowSettings);
  connect(imagesPage_, &frmImages::CurrentChanged, this, [this] { descriptions_->FollowSelection(); });
  connect(imagesPage_, &frmImages::ListChanged, this, &frmMain::RefreshCounts);
  connect(imagesPage_, &frmImages::FullScreenPreviewAsked, this,
          [this](const std::string& description, const std::string& file) {
            frmPreview preview(ports_.paths, this);
            preview.SetPicture(description, file);
            preview.exec();
          });
}

void frmMain::Start(const std::string& commandLine) {
  if (const std::string problem = ProblemOfPreferences(preferencesFile_); !problem.empty()) {
    ports_.boxes.Critical("File Error", problem);
  }
  preferences_ = ReadPreferences(preferencesFile_, appPath_, ports_.files);
  project_.LastProjectFolder = preferences_.ProjectFolder;
  Step();
  ShowBrowserMenus(RebuildBrowserMenus(preferences_.Browsers));
  Step();
  ShowPage(0);
  Step();
  project_.IsModified = false;
  project_.IsPristine = false;
  session_.NewProject();
  session_.OpenProjectFromCommandLine(commandLine);
  ShowProject();
  Step();
  splash_.reset();
}

void frmMain::ShowPage(int index) {
  for (int i = 0; i < ui_->tsMain->count(); ++i) ui_->tsMain->widget(i)->setEnabled(i == index);
}

void frmMain::FollowSettings() {
  pages_->Refresh(project_.settings);
  RefreshPageCount();
}

void frmMain::ShowSettings() {
  binder_.Refresh();
  FollowSettings();
}

void frmMain::ShowProject() {
  ShowSettings();
  imagesPage_->RefreshList();
  RefreshTitleBar();
  RefreshPreview();
  RefreshCounts();
}

}  // namespace vantorium
