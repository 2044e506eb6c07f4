#pragma once

#include "core/generation/GalleryTarget.h"
#include "core/generation/RunEnd.h"
#include "core/generation/RunEnvironment.h"
#include "core/generation/RunState.h"

#include <string>

namespace vantorium::generation {

class Changes;

/// What the phases of a run work with, and the operations they share.
struct RunContext {
  RunState& run;
  const RunOrder& order;
  const RunEnvironment& environment;
  publish::ProgressWindow& progress;
  GalleryTarget& target;
  Changes* changes = nullptr;  ///< of a run with OnlyChanges

  /// Shows `text` in the status bar and in the progress window.
  void Announce(const std::string& text) const {
    environment.host.SetStatusText(text);
    progress.SetText2(text);
  }

  /// Gives the event loop a turn and returns whether the run must stop.
  [[nodiscard]] bool Cancelled() const {
    environment.loop.Turn();
    return environment.cancel.CheckForCancel(progress);
  }

  /// Announces `text` and polls for a cancel. Nearly every step begins with this.
  [[nodiscard]] PhaseResult Begin(const std::string& text) const {
    Announce(text);
    if (Cancelled()) return RunEnd::Cancelled;
    return kGoOn;
  }

  [[nodiscard]] PhaseResult Fail(const std::string& title, const std::string& text) const {
    environment.boxes.Critical(title, text);
    return RunEnd::Failure;
  }

  /// Returns the run's end after a delivery: kGoOn on success, else Failure after a message box. A refusal during a
  /// cancel is caused by the cancel and returns Cancelled.
  [[nodiscard]] PhaseResult Settle(const Delivery& delivery) const {
    if (!delivery) return kGoOn;
    if (environment.cancel.CancelRequested()) return RunEnd::Cancelled;
    return Fail(delivery->title, delivery->text);
  }

  void Advance(std::int32_t steps = 1) const { progress.SetProgress(progress.GetProgress() + steps); }
};

}  // namespace vantorium::generation
