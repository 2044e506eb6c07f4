#pragma once

#include "core/Project.h"
#include "core/generation/RunEnd.h"
#include "core/generation/RunEnvironment.h"

#include <memory>
#include <optional>

namespace vantorium::generation {

/// The windows of the program during one run: the main window is busy and disabled, and the progress window is open,
/// which is also where the FTP client logs. Whatever the end of the run has not yet put back, the destructor puts back.
/// It then destroys the progress window and closes the connection to the server if it is still open.
class RunWindows {
 public:
  RunWindows(const core::Project& project, const RunOrder& order, const RunEnvironment& environment);
  ~RunWindows();
  RunWindows(const RunWindows&) = delete;
  RunWindows& operator=(const RunWindows&) = delete;

  [[nodiscard]] publish::ProgressWindow& Progress() { return *progress_; }
  /// Shows how the run ended. After a failure it returns only when the user has closed the progress window.
  void ShowEnd(RunEnd end);

 private:
  void ShowSuccess();
  void ShowFailure();
  void ShowCancel();

  const RunEnvironment& environment_;
  std::optional<env::BusyMainWindow> busy_;
  std::optional<env::DisabledMainWindow> disabled_;
  std::unique_ptr<publish::ProgressWindow> progress_;
};

}  // namespace vantorium::generation
