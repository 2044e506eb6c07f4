#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <functional>

namespace vantorium {

/// Has other characters typed into a line than those of the keys, or none. Texts that come in otherwise stay as they
/// are, and commands of the keyboard do.
class TypedKeys : public QObject {
 public:
  /// What is typed for the text of a key, behind the text that stands before it.
  using Replacement = std::function<QString(const QString& before, const QString& key)>;

  /// Belongs to the line.
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

}  // namespace vantorium
