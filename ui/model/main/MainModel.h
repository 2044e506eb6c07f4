#pragma once

#include "core/ImageListOperations.h"
#include "core/ProjectEditor.h"
#include "core/ProjectSession.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/GenerationMode.h"
#include "publish/UploadLog.h"
#include "publish/mFTP.h"
#include "ui/model/dialogs/ColorDialog.h"
#include "ui/model/dialogs/ProjectDialogs.h"
#include "ui/model/dialogs/SampleDialog.h"
#include "ui/model/main/CertificateQuestion.h"
#include "ui/model/main/DesktopPorts.h"
#include "ui/model/main/MainHost.h"

namespace vantorium::ui {

/// The main window without Qt. It owns what lasts from the start of the program to its end: the one project, the
/// preferences, the FTP client, the upload log and the cancel question. It carries out the commands of the menus, the
/// tool bar and the tray, and shows what they do in a MainView and its HelperWindows. Create it before these, and
/// destroy it after them.
class MainModel {
 public:
  /// What `ports` refers to must outlive the model.
  explicit MainModel(const DesktopPorts& ports);
  MainModel(const MainModel&) = delete;
  MainModel& operator=(const MainModel&) = delete;

  /// Call once, before everything below.
  void Attach(MainView& view, HelperWindows& windows) { host_.Attach(view, windows); }

  /// Reports that one of the seven stages of the start is done, and lets that be drawn.
  void ShowStartStep();
  /// Reads the preferences, makes a new project and opens the one named by `commandLine`, a path as the user typed it,
  /// which may be empty. Call once, when the view has all its pages. Reports the last three stages of the start.
  void Start(const std::string& commandLine);

  void NewProject();
  void OpenProject();
  void SaveProject();
  void SaveProjectAs();
  /// Previews the gallery in browser `browserIndex` of the list; 0 is the system's default.
  void ViewGallery(std::int16_t browserIndex);
  /// Creates, publishes or uploads, as the user chooses in the dialog.
  void CreateGallery();
  /// `entry` asks for the name and the location of a browser.
  void EditBrowserList(BrowserEntryDialog& entry);
  void ClearTemporaryFolder();
  /// Lets the user choose a theme and takes over its settings.
  void ApplyTheme();
  void ShowHelp();
  /// Ends the program: asks about unsaved changes, saves the preferences, empties the list and, if the preferences say
  /// so, the temporary folder, and closes the helper windows. Returns false if the user cancels or if saving the
  /// project fails; then nothing has happened, and the program must go on.
  [[nodiscard]] bool ShutDown();

  /// Call after each change of the settings.
  void ShowPageCount() { host_.RefreshPageCount(); }
  /// Call after each change of the image list.
  void ShowCounts() { host_.RefreshCounts(); }

  // What the pages and the helper windows work with.
  [[nodiscard]] const DesktopPorts& Ports() const { return ports_; }
  [[nodiscard]] const std::string& AppPath() const { return appPath_; }  ///< path text, no trailing backslash
  [[nodiscard]] core::Project& CurrentProject() { return project_; }
  [[nodiscard]] env::Preferences& CurrentPreferences() { return preferences_; }
  [[nodiscard]] core::ProjectEditor& Editor() { return editor_; }
  [[nodiscard]] core::ImageListOperations& Images() { return images_; }
  [[nodiscard]] ColorDialog& Colors() { return colors_; }
  [[nodiscard]] publish::UploadLog& Log() { return log_; }
  [[nodiscard]] generation::CancelCheck& Cancel() { return cancel_; }
  /// Returns the present sources of the sample pictures of dialogs.
  [[nodiscard]] SampleSources Samples() const;

 private:
  void ShowProject();
  void Run(generation::GenerationMode mode, std::int16_t browserIndex);
  void ShowShutdownStep(const char* text);
  void CleanUp();

  DesktopPorts ports_;
  std::string appPath_;
  std::filesystem::path preferencesFile_;
  env::Preferences preferences_;
  core::Project project_;
  core::ProjectEditor editor_{project_.settings, project_.IsModified};
  ColorDialog colors_;
  MainHost host_;
  core::ImageListOperations images_;
  ProjectFileDialogWindow projectDialog_;
  core::ProjectSession session_;
  publish::UploadLog log_;
  generation::CancelCheck cancel_;
  publish::mFTP ftp_;
  CertificateQuestion certificates_;
};

}  // namespace vantorium::ui
