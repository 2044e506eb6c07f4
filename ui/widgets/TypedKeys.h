#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <functional>

namespace vantorium::ui {

/// Replaces or drops the characters that keys type into a line. Keyboard commands, and text that arrives in other ways,
/// are not affected.
class TypedKeys : public QObject {
 public:
  /// Returns what to type for the text `key` of a key; `before` is the text before the cursor or the selection.
  using Replacement = std::function<QString(const QString& before, const QString& key)>;

  /// The line becomes the parent.
  TypedKeys(QLineEdit& line, Replacement replacement)
      : QObject(&line), line_(line), replacement_(std::move(replacement)) {
    line.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    constexpr auto kCommand = Qt::ControlModifier | Qt::MetaModifier;
    if (static_cast<QKeyEvent*>(event)->modifiers() & kCommand) return false;
    const QString key = static_cast<QKeyEvent*>(event)->text();
    const int start = line_.hasSelectedText() ? line_.selectionStart() : line_.cursorPosition();
    const QString typed = replacement_(line_.text().left(start), key);
    if (typed == key) return false;
    if (!typed.isEmpty()) line_.insert(typed);
    return true;
  }

 private:
  QLineEdit& line_;
  Replacement replacement_;
};

}  // namespace vantorium::ui
