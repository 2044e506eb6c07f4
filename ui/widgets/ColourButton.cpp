#include "ui/widgets/ColourButton.h"

#include "ui/qt/QtColour.h"

#include <QPainter>

namespace vantorium {
namespace {

constexpr int kMargin = 5;  // of the button around its colour

}  // namespace

ColourButton::ColourButton(QWidget* parent) : QPushButton(parent) {
  SetColour(0);
}

void ColourButton::SetColour(Colour colour) {
  colour_ = colour;
  setAccessibleDescription(ShownColour().name().toUpper());
  update();
}

QColor ColourButton::ShownColour() const {
  return ToQt(colour_);
}

QSize ColourButton::sizeHint() const {
  return QPushButton::sizeHint().expandedTo({fontMetrics().horizontalAdvance("000000000"), 0});
}

void ColourButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  const QRect swatch = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.fillRect(swatch, palette().color(QPalette::Dark));
  const QBrush brush = isEnabled() ? QBrush(ShownColour()) : QBrush(ShownColour(), Qt::Dense4Pattern);
  painter.fillRect(swatch.adjusted(1, 1, -1, -1), brush);
}

}  // namespace vantorium
