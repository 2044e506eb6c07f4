#pragma once

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace vantorium {

/// What to set as a tool tip that is to be read to the letter, also where it has a word in angle brackets.
[[nodiscard]] inline QString PlainTip(const QString& text) {
  return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

/// Shows the tip of a control to the letter, which it keeps.
class PlainToolTip : public QObject {
 public:
  /// Belongs to the control.
  explicit PlainToolTip(QWidget& control) : QObject(&control), control_(control) { control.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(control_.toolTip()), &control_);
    return true;
  }

 private:
  QWidget& control_;
};

}  // namespace vantorium
