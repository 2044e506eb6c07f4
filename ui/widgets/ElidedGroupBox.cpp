#include "ui/widgets/ElidedGroupBox.h"

#include "ui/widgets/PlainToolTip.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace vantorium::ui {

QString ElidedGroupBox::ShownTitle() const {
  QStyleOptionGroupBox frame;
  QGroupBox::initStyleOption(&frame);
  const QRect room = style()->subControlRect(QStyle::CC_GroupBox, &frame, QStyle::SC_GroupBoxContents, this);
  return fontMetrics().elidedText(title(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
}

void ElidedGroupBox::initStyleOption(QStyleOptionGroupBox* option) const {
  QGroupBox::initStyleOption(option);
  option->text = ShownTitle();
}

bool ElidedGroupBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || ShownTitle() == title()) return QGroupBox::event(event);
  QString text = title();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text.replace("&&", "&")), this);
  return true;
}

}  // namespace vantorium::ui
