#include "ui/widgets/ElidedLabel.h"

#include "ui/widgets/PlainToolTip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace vantorium::ui {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                        foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || fontMetrics().horizontalAdvance(text()) <= contentsRect().width()) {
    return QLabel::event(event);
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text()), this);
  return true;
}

}  // namespace vantorium::ui
