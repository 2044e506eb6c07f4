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

namespace vantorium::batch {

/// Prints message boxes as lines on standard error. Answers every question with Yes.
class TerminalMessageBox : public env::MessageBoxPort {
 public:
  explicit TerminalMessageBox(Terminal& terminal) : terminal_(terminal) {}
  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override;
  /// Whether any message was shown.
  [[nodiscard]] bool HaveSpoken() const { return haveSpoken_; }

 private:
  Terminal& terminal_;
  bool haveSpoken_ = false;
};

/// The current time, or the time given on the command line.
class BatchClock : public env::SystemClock {
 public:
  explicit BatchClock(std::optional<env::CivilTime> fixed) : fixed_(fixed) {}
  [[nodiscard]] env::CivilTime Now() const override;

 private:
  std::optional<env::CivilTime> fixed_;
};

/// The desktop of a batch run: it only opens files, and only if the command line asks for it.
class BatchShell : public env::Shell {
 public:
  BatchShell(const env::PathMap& paths, bool mayOpenFiles) : paths_(paths), mayOpenFiles_(mayOpenFiles) {}
  void Beep(env::BeepKind kind) override;
  void OpenFile(const std::string& path) override;
  /// A failure names this command and those that failed before it.
  void Start(const env::ShellCommand& command, const env::StartFailed& failed) override;
  /// Returns false if programs were tried to open a file and none could be started.
  [[nodiscard]] bool HasOpened() const { return tried_.empty() || opened_; }

 private:
  const env::PathMap& paths_;
  bool mayOpenFiles_;
  std::string tried_;  ///< the commands that failed, and why
  bool opened_ = false;
};

/// Makes Ctrl+C press the cancel button of the open progress window. A second one ends the process at once, and so does
/// the first while no window is open. SIGTERM does the same. So does SIGHUP, from a lost terminal, unless the program
/// was started to ignore it; but as it may arrive more than once, a SIGHUP that comes second does not end the process.
class InterruptLoop : public env::EventLoop {
 public:
  explicit InterruptLoop(generation::CancelCheck& cancel) : cancel_(cancel) {}
  void Turn() override;
  /// The window whose cancel button to press; null for none.
  void Watch(publish::ProgressWindow* progress);

 private:
  generation::CancelCheck& cancel_;
  publish::ProgressWindow* progress_ = nullptr;
  bool pressed_ = false;
};

/// Replaces the main window, which the batch program does not have.
class BatchHost : public core::ProjectSessionHost, public generation::RunHost {
 public:
  /// With `strict` a run that has warnings does not start.
  BatchHost(Terminal& terminal, env::MessageBoxPort& boxes, InterruptLoop& loop, publish::UploadLog& log, bool strict)
      : terminal_(terminal), boxes_(boxes), loop_(loop), log_(log), strict_(strict) {}

  void SetStatusText(const std::string& text) override { terminal_.ShowStatus(text); }
  [[nodiscard]] bool MayStart(generation::RunForecast& forecast) override;
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override;

 private:
  Terminal& terminal_;
  env::MessageBoxPort& boxes_;
  InterruptLoop& loop_;
  publish::UploadLog& log_;
  bool strict_;
};

}  // namespace vantorium::batch
