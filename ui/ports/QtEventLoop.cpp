#include "ui/ports/QtEventLoop.h"

#include <QCoreApplication>

namespace vantorium::ui {

void QtEventLoop::Turn() {
  QCoreApplication::processEvents();
}

void QtEventLoop::Wait() {
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace vantorium::ui
