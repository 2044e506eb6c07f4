#pragma once

#include "env/Shell.h"
#include "publish/CancelPoll.h"
#include "publish/ProgressModel.h"

#include <string>

namespace vantorium::ui {

// The two buttons of the progress window, CancelButton and btnShowLog.

[[nodiscard]] std::string CancelButtonCaption(const publish::ProgressModel& window);
/// CancelButton: as "&Cancel" it sets IsCancelled and lets `cancel` ask the user, as "&Close" it sets CloseRequested.
void PressCancelButton(publish::ProgressModel& window, publish::CancelPoll& cancel);

[[nodiscard]] bool IsShowLogVisible(const publish::ProgressModel& window);
/// btnShowLog: opens the log. `appPath` is the program's folder as path text. Failures are ignored.
void PressShowLog(env::Shell& shell, const std::string& appPath);

}  // namespace vantorium::ui
