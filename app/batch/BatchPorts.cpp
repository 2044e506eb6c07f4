#include "app/batch/BatchPorts.h"

#include "app/batch/TerminalProgress.h"
#include "env/RuntimeFailure.h"

#include <atomic>
#include <csignal>
#include <ctime>

#include <sys/wait.h>
#include <unistd.h>

namespace vantorium {
namespace {

// A signal handler can reach nothing but a global.
std::atomic<bool> interrupted = false;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void OnInterrupt(int /*signal*/) {
  constexpr int kExitCodeOfInterrupt = 130;
  if (interrupted.exchange(true)) ::_exit(kExitCodeOfInterrupt);
}

/// Starts a program and tells whether it could be started and ended well.
bool Start(const std::string& program, const std::string& argument) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::execlp(program.c_str(), program.c_str(), argument.c_str(), nullptr);
    ::_exit(127);
  }
  int status = 0;
  return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

BoxAnswer TerminalMessageBox::Show(BoxKind /*kind*/, BoxButtons buttons, const std::string& title,
                                   const std::string& text) {
  terminal_.PrintMessage(title, text);
  return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
}

CivilTime BatchClock::Now() const {
  if (fixed_) return *fixed_;
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  ::localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void BatchShell::Beep(BeepKind /*kind*/) {}

void BatchShell::OpenFile(const std::string& path) {
  if (mayOpenFiles_) StartProgram("xdg-open", path);
}

void BatchShell::StartProgram(const std::string& executable, const std::string& file) {
  const auto native = paths_.ToNative(file);
  if (!native || !Start(executable, native->string())) {
    throw RuntimeFailure(FailureKind::FileNotFound, "\"" + executable + "\" could not be started.");
  }
}

void InterruptLoop::Watch(ProgressWindow* progress) {
  progress_ = progress;
  const auto handler = progress != nullptr ? OnInterrupt : SIG_DFL;
  std::signal(SIGINT, handler);
  std::signal(SIGTERM, handler);
}

void InterruptLoop::Turn() {
  if (pressed_ || !interrupted || progress_ == nullptr) return;
  pressed_ = true;
  progress_->SetIsCancelled(true);
  std::ignore = cancel_.CheckForCancel(*progress_);
}

std::unique_ptr<ProgressWindow> BatchRunHost::CreateProgressWindow() {
  return std::make_unique<TerminalProgress>(terminal_, loop_);
}

}  // namespace vantorium
