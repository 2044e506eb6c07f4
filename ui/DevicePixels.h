#pragma once

#include <QWidget>

namespace vantorium {

/// The size of what a control has inside its frame, in pixels of the screen.
[[nodiscard]] inline QSize DevicePixels(const QWidget& control) {
  return (QSizeF(control.contentsRect().size()) * control.devicePixelRatioF()).toSize();
}

}  // namespace vantorium
