#include "ui/widgets/UpDown.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace vantorium::ui {

UpDown::UpDown(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  const auto add = [this, layout](Qt::ArrowType arrow, const QString& name, int by) {
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);  // the box handles the arrow keys
    button->setAccessibleName(name);
    button->setFixedSize(18, 13);
    connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
    layout->addWidget(button);
  };
  add(Qt::UpArrow, tr("Increase"), 1);
  add(Qt::DownArrow, tr("Decrease"), -1);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void UpDown::Attach(QLineEdit& box, int minimum, int maximum) {
  box_ = &box;
  minimum_ = minimum;
  maximum_ = maximum;
  box.installEventFilter(this);
}

bool UpDown::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      Step(key == Qt::Key_Up ? 1 : -1);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void UpDown::Step(int by) {
  if (box_ == nullptr) return;
  bool isNumber = false;
  const int number = box_->text().toInt(&isNumber);
  emit Stepped(QString::number(isNumber ? std::clamp(number + by, minimum_, maximum_) : minimum_));
}

}  // namespace vantorium::ui
