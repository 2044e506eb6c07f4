#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

namespace vantorium::ui {

/// Replaces the box's selection with `text`, as an undo step of its own that later typing does not join.
inline void ReplaceSelection(QPlainTextEdit& box, const QString& text) {
  QTextCursor cursor = box.textCursor();
  cursor.beginEditBlock();
  cursor.insertText(text);
  cursor.endEditBlock();
  box.document()->setModified(false);  // otherwise what is typed next joins this step
  box.setTextCursor(cursor);
}

/// A multi-line plain text box. Pasted and dropped text is inserted as plain text, in one undo step.
class TextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  // QPlainTextEdit's own version turns markup into formatted text, and crashes on an empty clipboard.
  void insertFromMimeData(const QMimeData* source) override {
    if (source == nullptr || !source->hasText() || isReadOnly()) return;
    ReplaceSelection(*this, source->text());
    ensureCursorVisible();
  }
};

}  // namespace vantorium::ui
