#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

namespace vantorium {

/// Puts `text` in place of the box's selection, as a step of undo of its own, which nothing that is typed joins.
inline void ReplaceSelection(QPlainTextEdit& box, const QString& text) {
  QTextCursor cursor = box.textCursor();
  cursor.beginEditBlock();
  cursor.insertText(text);
  cursor.endEditBlock();
  box.document()->setModified(false);  // otherwise what is typed next joins this step
  box.setTextCursor(cursor);
}

/// A box of several lines of plain text. What is pasted or dropped comes as the text it is, in one step
/// of undo.
class TextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  // Left to itself the toolkit turns what is marked up into formatted text, and does not survive an empty clipboard.
  void insertFromMimeData(const QMimeData* source) override {
    if (source == nullptr || !source->hasText() || isReadOnly()) return;
    ReplaceSelection(*this, source->text());
    ensureCursorVisible();
  }
};

}  // namespace vantorium
