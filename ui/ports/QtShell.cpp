#include "ui/ports/QtShell.h"

#include "env/RuntimeFailure.h"
#include "env/StartProcess.h"
#include "ui/qt/QtText.h"

#include <QApplication>
#include <QDesktopServices>
#include <QTimer>
#include <QUrl>

namespace vantorium::ui {
namespace {

QString NativeOf(const env::PathMap& paths, const std::string& path) {
  const auto native = paths.ToNative(path);
  if (!native) throw env::RuntimeFailure(env::FailureKind::FileNotFound);
  return ToQt(native->string());
}

/// Stops the timer before it calls `failed`, which may show a message box, whose event loop runs timers too.
void WatchOn(QObject& owner, const env::StartedProcess& process, const env::StartFailed& failed) {
  constexpr std::chrono::milliseconds kPause{20};
  auto* const timer = new QTimer(&owner);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, process, failed] {
    const auto stop = [timer] {
      timer->stop();
      timer->deleteLater();
    };
    try {
      if (!process.IsWatched()) stop();
    } catch (const env::RuntimeFailure& failure) {
      stop();
      failed(failure);
    }
  });
  timer->start(kPause);
}

[[noreturn]] void FailToStart(const std::string& what) {
  throw env::RuntimeFailure(env::FailureKind::FileNotFound, "\"" + what + "\" could not be started.");
}

}  // namespace

void QtShell::Beep(env::BeepKind /*kind*/) {
  QApplication::beep();
}

void QtShell::OpenFile(const std::string& path) {
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(NativeOf(paths_, path)))) FailToStart(paths_.Surface(path));
}

void QtShell::Start(const env::ShellCommand& command, const env::StartFailed& failed) {
  try {
    const env::StartedProcess process(command);
    if (process.IsWatched()) WatchOn(watches_, process, failed);
  } catch (const env::RuntimeFailure& failure) {
    failed(failure);
  }
}

}  // namespace vantorium::ui
