#include "ui/ports/QtShell.h"

#include "env/RuntimeFailure.h"
#include "env/StartProcess.h"
#include "ui/ports/QtText.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

namespace vantorium {
namespace {

QString NativeOf(const PathMap& paths, const std::string& path) {
  const auto native = paths.ToNative(path);
  if (!native) throw RuntimeFailure(FailureKind::FileNotFound);
  return ToQt(native->string());
}

[[noreturn]] void FailToStart(const std::string& what) {
  throw RuntimeFailure(FailureKind::FileNotFound, "\"" + what + "\" could not be started.");
}

}  // namespace

void QtShell::Beep(BeepKind /*kind*/) {
  QApplication::beep();
}

void QtShell::OpenFile(const std::string& path) {
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(NativeOf(paths_, path)))) FailToStart(path);
}

void QtShell::Start(const ShellCommand& command) {
  StartProcess(command);
}

}  // namespace vantorium
