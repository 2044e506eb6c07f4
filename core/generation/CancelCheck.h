#pragma once

#include "env/MessageBoxPort.h"
#include "publish/CancelPoll.h"
#include "publish/CancelState.h"
#include "publish/ProgressWindow.h"

#include <functional>

namespace vantorium {

/// Whether the run under way is to stop: polled by the run at each phase and each item, and called at once by the
/// cancel button of the progress window.
class CancelCheck : public CancelPoll, public CancelState {
 public:
  explicit CancelCheck(MessageBoxPort& boxes) : boxes_(boxes) {}

  /// True when the run must stop. The first call after the button was pressed asks whether that was meant.
  [[nodiscard]] bool CheckForCancel(ProgressWindow& progress) override;

  [[nodiscard]] bool CancelRequested() const override { return cancelRequested_; }
  void Clear() { cancelRequested_ = false; }
  /// What a confirmed cancel does at once, such as ending a transfer under way.
  void OnCancel(std::function<void()> action) { onCancel_ = std::move(action); }

 private:
  MessageBoxPort& boxes_;
  bool cancelRequested_ = false;
  std::function<void()> onCancel_;
};

}  // namespace vantorium
