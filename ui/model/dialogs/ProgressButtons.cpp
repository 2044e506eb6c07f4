#include "ui/model/dialogs/ProgressButtons.h"

#include "env/RuntimeFailure.h"
#include "publish/UploadLog.h"

namespace vantorium::ui {

std::string CancelButtonCaption(const publish::ProgressModel& window) {
  return window.OffersClose() ? "&Close" : "&Cancel";
}

void PressCancelButton(publish::ProgressModel& window, publish::CancelPoll& cancel) {
  if (window.OffersClose()) {
    window.CloseRequested = true;
    return;
  }
  window.SetIsCancelled(true);
  std::ignore = cancel.CheckForCancel(window);
}

bool IsShowLogVisible(const publish::ProgressModel& window) {
  return window.OffersClose();
}

void PressShowLog(env::Shell& shell, const std::string& appPath) {
  try {
    shell.OpenFile(appPath + '/' + publish::kUploadLogName);
  } catch (const env::RuntimeFailure&) {
    // A desktop that cannot open a text file tells the user itself.
  }
}

}  // namespace vantorium::ui
