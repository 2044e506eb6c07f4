#pragma once

#include <QObject>

namespace vantorium::ui {

/// Keeps the mouse wheel from changing a list box or a spinner that does not have the focus: the wheel scrolls the
/// parent instead, or does nothing. Applies to all windows of the program that are made while the guard lives.
class WheelGuard : public QObject {
 public:
  explicit WheelGuard(QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace vantorium::ui
