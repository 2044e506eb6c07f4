#pragma once

#include "env/Shell.h"
#include "publish/CancelPoll.h"
#include "publish/ProgressModel.h"

#include <string>

namespace vantorium {

// The two buttons of the progress window, CancelButton and btnShowLog.

[[nodiscard]] std::string CancelButtonCaption(const ProgressModel& window);
/// CancelButton: as "&Cancel" it sets IsCancelled and lets `cancel` ask the user, as "&Close" it sets CloseRequested.
void PressCancelButton(ProgressModel& window, CancelPoll& cancel);

[[nodiscard]] bool IsShowLogVisible(const ProgressModel& window);
/// btnShowLog: opens the log. `appPath` is the program's folder as path text. Failures are ignored.
void PressShowLog(Shell& shell, const std::string& appPath);

}  // namespace vantorium
