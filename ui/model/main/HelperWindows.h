#pragma once

#include "core/MovedFolders.h"
#include "core/generation/RunHost.h"
#include "ui/model/dialogs/BrowserList.h"
#include "ui/model/dialogs/ThemeModel.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The windows beside the main window, as far as MainModel shows, asks and closes them.
class HelperWindows {
 public:
  virtual ~HelperWindows() = default;

  /// Moves the splash window's bar by one of its seven stages.
  virtual void ShowStartStep() = 0;
  virtual void ShowInfoWindow(const std::string& text) = 0;
  virtual void HideInfoWindow() = 0;
  virtual void EnableTrayIcon(bool enabled) = 0;

  /// Stores the placements and alignments that the open descriptions window has not stored yet.
  virtual void StorePlacings() = 0;
  virtual void HideDescriptionsWindow() = 0;

  // Each shows its dialog modally.
  [[nodiscard]] virtual std::optional<generation::RunOrder> AskWhatToCreate() = 0;
  /// Asks where the folders of photographs are that have no place on this system. Returns nothing if the user cancels.
  [[nodiscard]] virtual std::vector<core::MovedFolder> AskForMovedFolders(const std::vector<std::string>& sources) = 0;
  /// Shows what would go wrong in a run. Returns false if the user does not want it.
  [[nodiscard]] virtual bool ShowRunWarnings(generation::RunForecast& forecast) = 0;
  virtual void ShowBrowserList(BrowserList& list) = 0;
  /// Returns true if the user chose a theme and its settings were taken over.
  [[nodiscard]] virtual bool ShowThemes(ThemeModel& themes) = 0;

  [[nodiscard]] virtual std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() = 0;

  /// Shows frmShutdown with this text.
  virtual void ShowShutdownStep(const std::string& text) = 0;
  /// Closes all of them, frmShutdown last. None can be shown again.
  virtual void CloseAll() = 0;
};

}  // namespace vantorium::ui
