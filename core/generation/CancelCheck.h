#pragma once

#include "env/MessageBoxPort.h"
#include "publish/ProgressWindow.h"

namespace vantorium {

/// Whether the run under way is to stop: polled by the run at each phase and each item, and called at once by the
/// cancel button of the progress window.
class CancelCheck {
 public:
  explicit CancelCheck(MessageBoxPort& boxes) : boxes_(boxes) {}

  /// True when the run must stop. The first call after the button was pressed asks whether that was meant.
  [[nodiscard]] bool CheckForCancel(ProgressWindow& progress);

  [[nodiscard]] bool CancelRequested() const { return cancelRequested_; }
  void Clear() { cancelRequested_ = false; }

 private:
  MessageBoxPort& boxes_;
  bool cancelRequested_ = false;
};

}  // namespace vantorium
