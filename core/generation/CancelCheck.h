#pragma once

#include "env/MessageBoxPort.h"
#include "publish/CancelPoll.h"
#include "publish/CancelState.h"
#include "publish/ProgressWindow.h"

#include <functional>

namespace vantorium::generation {

/// Decides whether the current run must stop. The run polls it at each phase and each item; the cancel button of the
/// progress window calls it at once.
class CancelCheck : public publish::CancelPoll, public publish::CancelState {
 public:
  explicit CancelCheck(env::MessageBoxPort& boxes) : boxes_(boxes) {}

  /// Returns true if the run must stop. The first call after the button was pressed asks the user to confirm.
  [[nodiscard]] bool CheckForCancel(publish::ProgressWindow& progress) override;

  [[nodiscard]] bool CancelRequested() const override { return cancelRequested_; }
  void Clear() { cancelRequested_ = false; }
  /// Sets what a confirmed cancel does at once, such as aborting a transfer.
  void OnCancel(std::function<void()> action) { onCancel_ = std::move(action); }

 private:
  env::MessageBoxPort& boxes_;
  bool cancelRequested_ = false;
  std::function<void()> onCancel_;
};

}  // namespace vantorium::generation
