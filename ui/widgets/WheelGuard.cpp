#include "ui/widgets/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace vantorium::ui {

WheelGuard::WheelGuard(QObject* parent) : QObject(parent) {
  QApplication::instance()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  const bool isPolish = event->type() == QEvent::Polish;
  if (!isPolish && event->type() != QEvent::Wheel) return false;
  if (qobject_cast<QComboBox*>(watched) == nullptr && qobject_cast<QAbstractSpinBox*>(watched) == nullptr) return false;
  auto* control = static_cast<QWidget*>(watched);
  if (isPolish) {
    // Otherwise the wheel would give it the focus before the event arrives.
    if (control->focusPolicy() == Qt::WheelFocus) control->setFocusPolicy(Qt::StrongFocus);
    return false;
  }
  if (control->hasFocus()) return false;
  event->ignore();  // passes it on to the parent
  return true;
}

}  // namespace vantorium::ui
