#pragma once

#include <QDialog>
#include <QPointer>

namespace vantorium::ui {

/// Runs a modal dialog and returns its result. Then its parent is the active window: some window managers focus no
/// window of the program when a dialog closes together with the question above it.
[[nodiscard]] inline int ExecDialog(QDialog& dialog) {
  const QPointer<QWidget> parent = dialog.parentWidget();
  const int result = dialog.exec();
  if (parent != nullptr) parent->activateWindow();
  return result;
}

}  // namespace vantorium::ui
