#include "app/batch/BatchPorts.h"

#include "app/batch/TerminalProgress.h"
#include "env/LaunchCommands.h"
#include "env/RuntimeFailure.h"
#include "env/StartProcess.h"

#include <atomic>
#include <csignal>

#include <unistd.h>

namespace vantorium::batch {
namespace {

// A signal handler can only reach a global.
std::atomic<bool> interrupted = false;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void OnInterrupt(int signal) {
  constexpr int kExitCodeOfInterrupt = 130;
  if (interrupted.exchange(true) && signal != SIGHUP) ::_exit(kExitCodeOfInterrupt);
}

bool IsIgnored(int signal) {
  struct sigaction action = {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

std::string InWords(const env::ShellCommand& command) {
  std::string text;
  for (const std::string& word : command.words) text += (text.empty() ? "" : " ") + word;
  return "\"" + text + "\"";
}

}  // namespace

env::BoxAnswer TerminalMessageBox::Show(env::BoxKind /*kind*/, env::BoxButtons buttons, const std::string& title,
                                        const std::string& text) {
  haveSpoken_ = true;
  terminal_.PrintMessage(title, text);
  return buttons == env::BoxButtons::Ok ? env::BoxAnswer::Ok : env::BoxAnswer::Yes;
}

env::CivilTime BatchClock::Now() const {
  return fixed_ ? *fixed_ : env::SystemClock::Now();
}

void BatchShell::Beep(env::BeepKind /*kind*/) {}

void BatchShell::OpenFile(const std::string& path) {
  env::Launch(env::DefaultOpener(path, paths_), *this,
              [](const env::RuntimeFailure& failure) { throw env::RuntimeFailure(failure); });
}

void BatchShell::Start(const env::ShellCommand& command, const env::StartFailed& failed) {
  if (!mayOpenFiles_) return;
  try {
    env::StartProcess(command);
    opened_ = true;
  } catch (const env::RuntimeFailure& failure) {
    tried_ += "\nTried " + InWords(command) + ": " + failure.Description();
    failed(env::RuntimeFailure(static_cast<env::FailureKind>(failure.Number()),
                               "Nothing could open the preview." + tried_));
  }
}

void InterruptLoop::Watch(publish::ProgressWindow* progress) {
  progress_ = progress;
  const auto handler = progress != nullptr ? OnInterrupt : SIG_DFL;
  std::signal(SIGINT, handler);
  std::signal(SIGTERM, handler);
  if (!IsIgnored(SIGHUP)) std::signal(SIGHUP, handler);
}

void InterruptLoop::Turn() {
  if (pressed_ || !interrupted || progress_ == nullptr) return;
  pressed_ = true;
  progress_->SetIsCancelled(true);
  std::ignore = cancel_.CheckForCancel(*progress_);
}

/// Warnings are not message boxes: if the run fails later, its reason must still be said.
bool BatchHost::MayStart(generation::RunForecast& forecast) {
  for (const generation::Finding& finding : forecast.Found()) terminal_.PrintMessage("Warning", LineOf(finding));
  if (strict_) boxes_.Critical("Not Started", "With --strict, a run that has warnings does not start.");
  return !strict_;
}

std::unique_ptr<publish::ProgressWindow> BatchHost::CreateProgressWindow() {
  return std::make_unique<TerminalProgress>(log_, terminal_, loop_);
}

}  // namespace vantorium::batch
