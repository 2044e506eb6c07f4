#pragma once

#include "publish/ProgressWindow.h"

namespace vantorium::publish {

/// The check for a cancel that a run makes before each step, and that the cancel button of its window makes at once.
class CancelPoll {
 public:
  virtual ~CancelPoll() = default;
  /// Returns true if the run must stop. The first call after the button was pressed asks the user to confirm.
  [[nodiscard]] virtual bool CheckForCancel(ProgressWindow& progress) = 0;
};

}  // namespace vantorium::publish
