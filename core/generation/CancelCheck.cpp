#include "core/generation/CancelCheck.h"

namespace vantorium::generation {

bool CancelCheck::CheckForCancel(publish::ProgressWindow& progress) {
  if (cancelRequested_ || !progress.IsCancelled()) return progress.IsCancelled();
  if (boxes_.AskYesNo("Cancel Request", "Are you sure you wish to cancel?")) {
    progress.SetText3("\r\nCancelling Request...\r\n", true);
    progress.ShowBusyPointer(true);
    cancelRequested_ = true;
    if (onCancel_) onCancel_();
  } else {
    progress.SetIsCancelled(false);
  }
  return progress.IsCancelled();
}

}  // namespace vantorium::generation
