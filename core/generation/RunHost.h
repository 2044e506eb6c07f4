#pragma once

#include "core/generation/RunForecast.h"
#include "core/generation/RunOrder.h"
#include "env/WindowState.h"
#include "publish/ProgressWindow.h"

#include <memory>
#include <optional>

namespace vantorium::generation {

/// What a run needs from the main window.
class RunHost : public virtual env::WindowState {
 public:
  /// Shows the dialog that starts a run, modally. Returns nullopt if the user cancels it. A program without a window
  /// gives its order itself and keeps this.
  [[nodiscard]] virtual std::optional<RunOrder> AskWhatToCreate() { return std::nullopt; }
  /// Tells what would go wrong in a run, which is at least one finding. Returns false if the run must not start. May
  /// change the project and renew the forecast.
  [[nodiscard]] virtual bool MayStart(RunForecast& /*forecast*/) { return true; }
  [[nodiscard]] virtual std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() = 0;
  /// Sets whether the tray icon responds.
  virtual void EnableTrayIcon(bool /*enabled*/) {}
};

}  // namespace vantorium::generation
