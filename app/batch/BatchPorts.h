#pragma once

#include "app/batch/Terminal.h"
#include "core/generation/CancelCheck.h"
#include "core/generation/RunHost.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/Shell.h"
#include "env/SystemClock.h"
#include "publish/UploadLog.h"

#include <optional>
#include <string>

namespace vantorium {

/// Message boxes as lines on standard error. Every question is answered Yes.
class TerminalMessageBox : public MessageBoxPort {
 public:
  explicit TerminalMessageBox(Terminal& terminal) : terminal_(terminal) {}
  BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) override;
  /// Whether the user has been told anything yet.
  [[nodiscard]] bool HaveSpoken() const { return haveSpoken_; }

 private:
  Terminal& terminal_;
  bool haveSpoken_ = false;
};

/// The present time, or the one that the command line gives.
class BatchClock : public SystemClock {
 public:
  explicit BatchClock(std::optional<CivilTime> fixed) : fixed_(fixed) {}
  [[nodiscard]] CivilTime Now() const override;

 private:
  std::optional<CivilTime> fixed_;
};

/// The desktop, of which a batch run needs only that a file is opened when that was asked for.
class BatchShell : public Shell {
 public:
  BatchShell(const PathMap& paths, bool mayOpenFiles) : paths_(paths), mayOpenFiles_(mayOpenFiles) {}
  void Beep(BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  /// The failure names this command and those that failed before.
  void Start(const ShellCommand& command, const StartFailed& failed) override;
  /// False when a file was to be opened and none of the programs could be started.
  [[nodiscard]] bool HasOpened() const { return tried_.empty() || opened_; }

 private:
  const PathMap& paths_;
  bool mayOpenFiles_;
  std::string tried_;  ///< the commands that failed, and why
  bool opened_ = false;
};

/// Ctrl+C as the cancel button of the progress window that is open. A second one ends the process at once, and so does
/// the first while no window is open. The wish of the system that the program may end is the same, and so is a terminal
/// that goes away, unless the program was started to outlive it; but that may be told more than once.
class InterruptLoop : public EventLoop {
 public:
  explicit InterruptLoop(CancelCheck& cancel) : cancel_(cancel) {}
  void Turn() override;
  /// The window whose button it is; null for none.
  void Watch(ProgressWindow* progress);

 private:
  CancelCheck& cancel_;
  ProgressWindow* progress_ = nullptr;
  bool pressed_ = false;
};

/// The main window that a batch run does not have.
class BatchRunHost : public RunHost {
 public:
  BatchRunHost(Terminal& terminal, InterruptLoop& loop, UploadLog& log, CreateChoice choice)
      : terminal_(terminal), loop_(loop), log_(log), choice_(std::move(choice)) {}

  [[nodiscard]] CreateChoice AskWhatToCreate() override { return choice_; }
  [[nodiscard]] std::unique_ptr<ProgressWindow> CreateProgressWindow() override;
  void ShowStatus(const std::string& text) override { terminal_.ShowStatus(text); }
  void ShowBusyPointer(bool /*busy*/) override {}
  void EnableMainWindow(bool /*enabled*/) override {}
  void EnableTrayIcon(bool /*enabled*/) override {}

 private:
  Terminal& terminal_;
  InterruptLoop& loop_;
  UploadLog& log_;
  CreateChoice choice_;
};

}  // namespace vantorium
