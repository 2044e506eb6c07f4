#pragma once

#include "app/batch/Terminal.h"
#include "core/ProjectSessionHost.h"
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

/// Prints message boxes as lines on standard error. Answers every question with Yes.
class TerminalMessageBox : public MessageBoxPort {
 public:
  explicit TerminalMessageBox(Terminal& terminal) : terminal_(terminal) {}
  BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) override;
  /// Whether any message was shown.
  [[nodiscard]] bool HaveSpoken() const { return haveSpoken_; }

 private:
  Terminal& terminal_;
  bool haveSpoken_ = false;
};

/// The current time, or the time given on the command line.
class BatchClock : public SystemClock {
 public:
  explicit BatchClock(std::optional<CivilTime> fixed) : fixed_(fixed) {}
  [[nodiscard]] CivilTime Now() const override;

 private:
  std::optional<CivilTime> fixed_;
};

/// The desktop of a batch run: it only opens files, and only if the command line asks for it.
class BatchShell : public Shell {
 public:
  BatchShell(const PathMap& paths, bool mayOpenFiles) : paths_(paths), mayOpenFiles_(mayOpenFiles) {}
  void Beep(BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  /// A failure names this command and those that failed before it.
  void Start(const ShellCommand& command, const StartFailed& failed) override;
  /// Returns false if programs were tried to open a file and none could be started.
  [[nodiscard]] bool HasOpened() const { return tried_.empty() || opened_; }

 private:
  const PathMap& paths_;
  bool mayOpenFiles_;
  std::string tried_;  ///< the commands that failed, and why
  bool opened_ = false;
};

/// Makes Ctrl+C press the cancel button of the open progress window. A second one ends the process at once, and so does
/// the first while no window is open. SIGTERM does the same. So does SIGHUP, from a lost terminal, unless the program
/// was started to ignore it; but as it may arrive more than once, a SIGHUP that comes second does not end the process.
class InterruptLoop : public EventLoop {
 public:
  explicit InterruptLoop(CancelCheck& cancel) : cancel_(cancel) {}
  void Turn() override;
  /// The window whose cancel button to press; null for none.
  void Watch(ProgressWindow* progress);

 private:
  CancelCheck& cancel_;
  ProgressWindow* progress_ = nullptr;
  bool pressed_ = false;
};

/// Replaces the main window, which the batch program does not have.
class BatchHost : public ProjectSessionHost, public RunHost {
 public:
  BatchHost(Terminal& terminal, InterruptLoop& loop, UploadLog& log) : terminal_(terminal), loop_(loop), log_(log) {}

  void SetStatusText(const std::string& text) override { terminal_.ShowStatus(text); }
  [[nodiscard]] std::unique_ptr<ProgressWindow> CreateProgressWindow() override;

 private:
  Terminal& terminal_;
  InterruptLoop& loop_;
  UploadLog& log_;
};

}  // namespace vantorium
