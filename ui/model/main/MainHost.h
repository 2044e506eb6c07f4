#pragma once

#include "core/ImageListDisplay.h"
#include "core/Project.h"
#include "core/ProjectSessionHost.h"
#include "core/generation/RunHost.h"
#include "ui/model/dialogs/ColorDialog.h"
#include "ui/model/main/BrowserTable.h"
#include "ui/model/main/HelperWindows.h"
#include "ui/model/main/MainView.h"

namespace vantorium::ui {

/// Gives the session, the image list's operations and the runs what they need from the main window: words it for the
/// project and shows it in a MainView and its HelperWindows.
class MainHost : public core::ProjectSessionHost,
                 public generation::RunHost,
                 public core::ImageListDisplay,
                 public BrowserTableHost {
 public:
  MainHost(const core::Project& project, ColorDialog& colors, std::uint16_t ftpPort)
      : project_(project), colors_(colors), ftpPort_(ftpPort) {}

  /// Call before anything else. Both must live as long as this is used.
  void Attach(MainView& view, HelperWindows& windows);
  [[nodiscard]] MainView& View() { return *view_; }
  [[nodiscard]] HelperWindows& Windows() { return *windows_; }

  void SetStatusText(const std::string& text) override { view_->ShowStatus(text); }
  void ShowInfoWindow(const std::string& text) override { windows_->ShowInfoWindow(text); }
  void HideInfoWindow() override { windows_->HideInfoWindow(); }
  void EnableMainWindow(bool enabled) override { view_->EnableMainWindow(enabled); }
  [[nodiscard]] std::vector<core::MovedFolder> AskForMovedFolders(const std::vector<std::string>& sources) override {
    return windows_->AskForMovedFolders(sources);
  }
  void RefreshTitleBar() override;
  void RefreshPreview() override { view_->ShowPreview(); }
  void RefreshCounts() override;
  void RefreshPageCount() override;
  void HideDescriptionsWindow() override { windows_->HideDescriptionsWindow(); }
  void SelectFirstTab() override { view_->SelectFirstTab(); }
  void FocusTitleField() override { view_->FocusTitleField(); }
  void RebuildCustomColors() override { colors_.RebuildCustomColors(view_->SystemColors()); }
  [[nodiscard]] std::optional<generation::RunOrder> AskWhatToCreate() override;
  [[nodiscard]] bool MayStart(generation::RunForecast& forecast) override;
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override;
  void ShowBusyPointer(bool busy) override { view_->ShowBusyPointer(busy); }
  void EnableTrayIcon(bool enabled) override { windows_->EnableTrayIcon(enabled); }
  void ScrollIntoView(std::size_t position) override { view_->ScrollIntoView(position); }
  void ShowBrowserList(BrowserList& list) override { windows_->ShowBrowserList(list); }
  void ShowBrowserMenus(const BrowserMenus& menus) override { view_->ShowBrowserMenus(menus); }

 private:
  [[nodiscard]] std::int32_t ImageCount() const { return static_cast<std::int32_t>(project_.images.Count()); }

  const core::Project& project_;
  ColorDialog& colors_;
  std::uint16_t ftpPort_;
  MainView* view_ = nullptr;
  HelperWindows* windows_ = nullptr;
};

}  // namespace vantorium::ui
