#pragma once

#include "core/ImageListOperations.h"
#include "core/ProjectSession.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/GenerationMode.h"
#include "core/generation/RunHost.h"
#include "publish/UploadLog.h"
#include "publish/mFTP.h"
#include "ui/main/DesktopPorts.h"
#include "ui/model/dialogs/ColorDialog.h"
#include "ui/model/dialogs/ProjectDialogs.h"
#include "ui/model/dialogs/SampleDialog.h"
#include "ui/model/main/BrowserTable.h"
#include "ui/widgets/FieldBinder.h"

#include <QMainWindow>
#include <QPointer>
#include <array>
#include <memory>

class QLabel;
class QMenu;

namespace Ui {
class frmMain;
}

namespace vantorium {

class SettingsDialogs;
class SettingsPages;
class frmCreateGallery;
class frmImageDescriptions;
class frmImages;
class frmInfo;
class frmSplash;
class frmSysTray;

/// The main window. It owns what outlives a dialog: the one project, the preferences, the FTP client, and the windows
/// that are hidden and shown again.
class frmMain : public QMainWindow,
                public ProjectSessionHost,
                public RunHost,
                public ImageListDisplay,
                public BrowserTableHost {
  Q_OBJECT

 public:
  /// What `ports` refers to must outlive the window.
  explicit frmMain(const DesktopPorts& ports);
  ~frmMain() override;

  /// Reads the preferences, makes a new project and opens the one named by `commandLine`, a path as the user typed it,
  /// which may be empty. Call once, before the window is shown.
  void Start(const std::string& commandLine);

  [[nodiscard]] const Project& CurrentProject() const { return project_; }
  [[nodiscard]] const Preferences& CurrentPreferences() const { return preferences_; }
  [[nodiscard]] const FieldBinder& Binder() const { return binder_; }

  // Implements ProjectSessionHost, RunHost, ImageListDisplay and BrowserTableHost.
  void SetStatusText(const std::string& text) override;
  void ShowWaitPointer() override { ShowBusyPointer(true); }
  void ResetPointer() override { ShowBusyPointer(false); }
  void ShowInfoWindow(const std::string& text) override;
  void HideInfoWindow() override;
  void EnableMainWindow(bool enabled) override;
  void RefreshTitleBar() override;
  void RefreshPreview() override;
  void RefreshCounts() override;
  void RefreshPageCount() override;
  void HideDescriptionsWindow() override;
  void SelectFirstTab() override;
  void FocusTitleField() override;
  void RebuildCustomColors() override;
  [[nodiscard]] CreateChoice AskWhatToCreate() override;
  [[nodiscard]] std::unique_ptr<ProgressWindow> CreateProgressWindow() override;
  void ShowStatus(const std::string& text) override { SetStatusText(text); }
  void ShowBusyPointer(bool busy) override;
  void EnableTrayIcon(bool enabled) override;
  void ScrollIntoView(std::size_t position) override;
  void ShowBrowserList(BrowserList& list) override;
  void ShowBrowserMenus(const BrowserMenus& menus) override;

 signals:
  /// The window was closed and everything is cleaned up.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildPages();
  void BuildTray();
  void ConnectCommands();
  void Step();

  void NewProject();
  void OpenProject();
  void SaveProject();
  void SaveProjectAs();
  void ViewInBrowser(std::int16_t browserIndex);
  void RunCreateGallery(GenerationMode mode, std::int16_t browserIndex);
  void EditBrowserList();
  void SetTempFolderLocation();
  void ClearTemporaryFolder();
  void ApplyTheme();
  void ShowHelp();
  void ShowAbout();
  void BringToFront();
  void OnTrayMenu(const std::string& key);

  void ShowPage(int index);
  /// Updates what depends on the settings.
  void FollowSettings();
  /// Shows the settings as they are now. Call after an operation that repairs empty ones.
  void ShowSettings();
  /// Updates everything that shows the project.
  void ShowProject();
  void AddBrowserActions(QMenu& menu, const BrowserMenus& menus);
  void ShowDescriptions();
  [[nodiscard]] SampleSources Samples() const;
  [[nodiscard]] std::vector<std::string> AskForImageFolders();
  void ShutDown();
  void KeepPointerWhileDisabled();

  DesktopPorts ports_;
  std::string appPath_;
  std::filesystem::path preferencesFile_;
  Preferences preferences_;
  Project project_;
  ProjectEditor editor_{project_.settings, project_.IsModified};
  FieldBinder binder_{editor_, ports_.boxes};
  ImageListOperations images_{project_, ports_.files, ports_.boxes, *this};
  ProjectFileDialogWindow projectDialog_{ports_.fileBrowser};
  ProjectSession session_;
  ColorDialog colors_{ports_.dialogs};
  UploadLog log_;
  CancelCheck cancel_{ports_.boxes};
  mFTP ftp_;

  std::unique_ptr<Ui::frmMain> ui_;
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<frmSysTray> tray_;
  std::unique_ptr<frmInfo> info_;
  std::unique_ptr<frmCreateGallery> create_;
  std::array<QPointer<QWidget>, 2> focus_;  // the focus of this window and the descriptions when disabled
  // The following are children of this window.
  QLabel* statusText_ = nullptr;
  QLabel* imageCount_ = nullptr;
  frmImages* imagesPage_ = nullptr;
  SettingsPages* pages_ = nullptr;
  frmImageDescriptions* descriptions_ = nullptr;
};

}  // namespace vantorium
