#pragma once

#include "ui/dialogs/frmCreateGallery.h"
#include "ui/dialogs/frmImageDescriptions.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmShutdown.h"
#include "ui/main/frmSplash.h"
#include "ui/main/frmSysTray.h"
#include "ui/model/main/HelperWindows.h"

#include <QPointer>
#include <memory>
#include <string>
#include <vector>

namespace vantorium::ui {

class FieldBinder;
class MainModel;
class frmAbout;

/// The windows beside the main window: the tray icon, the windows of the start and of the end, those that are hidden
/// and shown again, and the dialogs of commands.
class QtHelperWindows : public HelperWindows {
 public:
  /// Shows the splash window, and the tray icon. `mainWindow` owns the dialogs, and like the others must outlive this.
  QtHelperWindows(MainModel& model, FieldBinder& binder, QWidget& mainWindow);

  [[nodiscard]] bool IsStarting() const { return splash_ != nullptr; }
  void EndStart() { splash_.reset(); }

  [[nodiscard]] frmSysTray& Tray() { return *tray_; }
  [[nodiscard]] frmImageDescriptions& Descriptions() { return *descriptions_; }
  void ShowDescriptions();

  // Each shows its dialog modally.
  /// If it is open already, brings it to the front: the tray's menu works meanwhile.
  void ShowAbout();
  /// `file` is path text.
  void ShowPreview(const std::string& description, const std::string& file);
  void EditFileNames();
  void EditFrameNames();
  void SetTempFolderLocation();
  /// Returns path text; none if the user cancels.
  [[nodiscard]] std::vector<std::string> AskForImageFolders();

  /// Call after the main window was disabled: its dialogs are disabled with it, but this one has to be readable.
  void KeepInfoWindowEnabled() { info_->setEnabled(true); }

  void ShowStartStep() override { splash_->Step(); }
  void ShowInfoWindow(const std::string& text) override;
  void HideInfoWindow() override { info_->hide(); }
  void EnableTrayIcon(bool enabled) override { tray_->SetEnabled(enabled); }
  void StorePlacings() override { descriptions_->StorePlacings(); }
  void HideDescriptionsWindow() override { descriptions_->hide(); }
  [[nodiscard]] bool ShowThemes(ThemeModel& themes) override;
  [[nodiscard]] std::optional<generation::RunOrder> AskWhatToCreate() override { return create_->Ask(); }
  [[nodiscard]] std::vector<core::MovedFolder> AskForMovedFolders(const std::vector<std::string>& sources) override;
  [[nodiscard]] bool ShowRunWarnings(generation::RunForecast& forecast) override;
  void ShowBrowserList(BrowserList& list) override;
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override;
  void ShowShutdownStep(const std::string& text) override;
  void CloseAll() override;

 private:
  MainModel& model_;
  FieldBinder& binder_;
  QWidget& mainWindow_;
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<frmSysTray> tray_;
  std::unique_ptr<frmImageDescriptions> descriptions_;
  std::unique_ptr<frmCreateGallery> create_;
  std::unique_ptr<frmInfo> info_;
  std::unique_ptr<frmShutdown> shutdown_;
  QPointer<frmAbout> about_;
};

}  // namespace vantorium::ui
