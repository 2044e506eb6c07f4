#pragma once

#include <QTransform>
#include <QWidget>
#include <cmath>

namespace vantorium::ui {

/// The size of a control's area inside its frame, in pixels of the screen.
[[nodiscard]] inline QSize DevicePixels(const QWidget& control) {
  return (QSizeF(control.contentsRect().size()) * control.devicePixelRatioF()).toSize();
}

/// The whole device pixels inside `area`, in device pixels; `toPixels` is the deviceTransform of a painter.
[[nodiscard]] inline QRect WholePixels(const QTransform& toPixels, const QRect& area) {
  const QRectF exact = toPixels.mapRect(QRectF(area));
  const QPointF begin(std::ceil(exact.left()), std::ceil(exact.top()));
  const QPointF end(std::floor(exact.right()), std::floor(exact.bottom()));
  return QRectF(begin, end).toRect();
}

}  // namespace vantorium::ui
