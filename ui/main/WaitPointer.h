#pragma once

#include <QWidget>

namespace vantorium::ui {

/// Shows the wait pointer over a window while it lives. Message boxes above the window keep their own.
class WaitPointer {
 public:
  explicit WaitPointer(QWidget& window) : window_(window) { window_.setCursor(Qt::WaitCursor); }
  ~WaitPointer() { window_.unsetCursor(); }
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;

 private:
  QWidget& window_;
};

}  // namespace vantorium::ui
