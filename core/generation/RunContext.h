#pragma once

#include "core/generation/CancelCheck.h"
#include "core/generation/GalleryTarget.h"
#include "core/generation/RunArguments.h"
#include "core/generation/RunEnd.h"
#include "core/generation/RunHost.h"
#include "core/generation/RunState.h"
#include "env/Clock.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/Screen.h"
#include "image/TextRaster.h"
#include "publish/mFTP.h"

#include <string>

namespace vantorium {

/// What the phases of a run work with, and the few things that all of them do.
struct RunContext {
  RunState& run;
  const RunArguments& arguments;
  RunHost& host;
  MessageBoxPort& boxes;
  EventLoop& loop;
  const Clock& clock;
  CancelCheck& cancel;
  ProgressWindow& progress;
  GalleryTarget& target;
  const Screen& screen;
  const TextRaster& texts;
  mFTP* ftp = nullptr;  ///< of a run that goes to a server
  unsigned jobs = 1;    ///< photographs worked on at a time

  /// Shows what is being done in the status bar and in the progress window.
  void Announce(const std::string& text) const {
    host.ShowStatus(text);
    progress.SetText2(text);
  }

  /// Gives the event loop a turn and tells whether the run is to stop.
  [[nodiscard]] bool Cancelled() const {
    loop.Turn();
    return cancel.CheckForCancel(progress);
  }

  /// Announces and polls: the beginning of nearly every step.
  [[nodiscard]] PhaseResult Begin(const std::string& text) const {
    Announce(text);
    if (Cancelled()) return RunEnd::Cancelled;
    return kGoOn;
  }

  [[nodiscard]] PhaseResult Fail(const std::string& title, const std::string& text) const {
    boxes.Critical(title, text);
    return RunEnd::Failure;
  }

  /// The run's end after a delivery: none when it went well. A refusal during a cancel is the cancel's own doing.
  [[nodiscard]] PhaseResult Settle(const Delivery& delivery) const {
    if (!delivery) return kGoOn;
    if (cancel.CancelRequested()) return RunEnd::Cancelled;
    return Fail(delivery->title, delivery->text);
  }

  void Advance(std::int32_t steps = 1) const { progress.SetProgress(progress.GetProgress() + steps); }
};

}  // namespace vantorium
