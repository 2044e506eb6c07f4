#pragma once

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace vantorium::ui {

/// Returns what to set as a tool tip so that Qt shows `text` literally, including words in angle brackets.
[[nodiscard]] inline QString PlainTip(const QString& text) {
  return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

/// Shows a control's tool tip literally. The control's toolTip() stays as it is.
class PlainToolTip : public QObject {
 public:
  /// The control becomes the parent.
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

}  // namespace vantorium::ui
