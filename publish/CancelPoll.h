#pragma once

#include "publish/ProgressWindow.h"

namespace vantorium {

/// The question that a run asks before each thing it does, and that the cancel button of its window asks at once.
class CancelPoll {
 public:
  virtual ~CancelPoll() = default;
  /// True when the run must stop. The first call after the button was pressed asks the user whether that was meant.
  [[nodiscard]] virtual bool CheckForCancel(ProgressWindow& progress) = 0;
};

}  // namespace vantorium
