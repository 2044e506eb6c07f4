#include "ui/model/dialogs/ProgressButtons.h"

#include "env/RuntimeFailure.h"
#include "publish/UploadLog.h"

namespace vantorium {

std::string CancelButtonCaption(const ProgressModel& window) {
  return window.OffersClose() ? "&Close" : "&Cancel";
}

void PressCancelButton(ProgressModel& window, CancelPoll& cancel) {
  if (window.OffersClose()) {
    window.CloseRequested = true;
    return;
  }
  window.SetIsCancelled(true);
  std::ignore = cancel.CheckForCancel(window);
}

bool IsShowLogVisible(const ProgressModel& window) {
  return window.OffersClose();
}

void PressShowLog(Shell& shell, const std::string& appPath) {
  try {
    shell.OpenFile(appPath + '/' + kUploadLogName);
  } catch (const RuntimeFailure&) {
    // A desktop that cannot open a text file tells the user itself.
  }
}

}  // namespace vantorium
