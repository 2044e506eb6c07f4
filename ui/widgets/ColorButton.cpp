#include "ui/widgets/ColorButton.h"

#include "ui/qt/QtColor.h"

#include <QPainter>

namespace vantorium::ui {
namespace {

constexpr int kMargin = 5;  // between the button's edge and its color

}  // namespace

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent) {
  SetColor(0);
}

void ColorButton::SetColor(core::Color color) {
  color_ = color;
  setAccessibleDescription(ShownColor().name().toUpper());
  update();
}

QColor ColorButton::ShownColor() const {
  return ToQt(color_);
}

QSize ColorButton::sizeHint() const {
  return QPushButton::sizeHint().expandedTo({fontMetrics().horizontalAdvance("000000000"), 0});
}

void ColorButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  const QRect swatch = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.fillRect(swatch, palette().color(QPalette::Dark));
  const QBrush brush = isEnabled() ? QBrush(ShownColor()) : QBrush(ShownColor(), Qt::Dense4Pattern);
  painter.fillRect(swatch.adjusted(1, 1, -1, -1), brush);
}

}  // namespace vantorium::ui
