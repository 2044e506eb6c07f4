#pragma once

#include "ui/main/KeptFocus.h"
#include "ui/main/QtHelperWindows.h"
#include "ui/model/main/MainView.h"
#include "ui/widgets/FieldBinder.h"

#include <QMainWindow>
#include <memory>

namespace Ui {
class frmMain;
}

namespace vantorium::ui {

class MainModel;
class SettingsPages;
class ViewMenus;
class frmGallery;
class frmImages;
class frmThumbnails;

/// The main window: shows a MainModel and forwards the user's commands to it.
class frmMain : public QMainWindow, public MainView {
  Q_OBJECT

 public:
  /// Becomes the view of `model`, which must outlive the window.
  explicit frmMain(MainModel& model);
  ~frmMain() override;

  /// Starts the model; see there. Call once, before the window is shown.
  void Start(const std::string& commandLine);

  [[nodiscard]] const FieldBinder& Binder() const { return binder_; }

  void ShowTitle(const std::string& text) override;
  void ShowStatus(const std::string& text) override;
  void ShowImageCount(const std::string& text) override;
  void ShowPageCount(const std::string& text) override;
  void ShowBrowserMenus(const BrowserMenus& menus) override;
  void ShowBusyPointer(bool busy) override;
  void EnableMainWindow(bool enabled) override;
  void ShowSettings() override;
  void ShowImages() override;
  void ShowPreview() override;
  void ScrollIntoView(std::size_t position) override;
  void SelectFirstTab() override;
  void FocusTitleField() override;
  [[nodiscard]] env::CustomColors SystemColors() const override;

 signals:
  /// The window was closed and everything is cleaned up.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildPages();
  void ConnectCommands();
  void ConnectPages();
  void ConnectTray();

  void EditBrowserList();
  void BringToFront();
  void OnTrayMenu(const QString& key);
  void ShowPage(int index);
  void FollowSettings();
  void KeepPointerWhileDisabled();

  MainModel& model_;
  FieldBinder binder_;
  std::unique_ptr<Ui::frmMain> ui_;
  QtHelperWindows windows_;
  KeptFocus focus_;
  // The following are children of this window.
  ViewMenus* viewMenus_ = nullptr;
  frmGallery* galleryPage_ = nullptr;
  frmImages* imagesPage_ = nullptr;
  frmThumbnails* thumbnailsPage_ = nullptr;
  SettingsPages* pages_ = nullptr;
};

}  // namespace vantorium::ui
