#pragma once

#include <QApplication>

namespace vantorium::ui {

/// Shows the busy pointer over all windows of the program while it lives.
class BusyPointer {
 public:
  BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QApplication::restoreOverrideCursor(); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
};

}  // namespace vantorium::ui
