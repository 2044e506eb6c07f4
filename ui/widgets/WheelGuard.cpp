#include "ui/widgets/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace vantorium {

WheelGuard::WheelGuard(QObject* parent) : QObject(parent) {
  QApplication::instance()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  const bool isPolish = event->type() == QEvent::Polish;
  if (!isPolish && event->type() != QEvent::Wheel) return false;
  if (qobject_cast<QComboBox*>(watched) == nullptr && qobject_cast<QAbstractSpinBox*>(watched) == nullptr) return false;
  auto* control = static_cast<QWidget*>(watched);
  if (isPolish) {
    // The wheel would give it the keyboard before the event comes.
    if (control->focusPolicy() == Qt::WheelFocus) control->setFocusPolicy(Qt::StrongFocus);
    return false;
  }
  if (control->hasFocus()) return false;
  event->ignore();  // goes on to the window around it
  return true;
}

}  // namespace vantorium
