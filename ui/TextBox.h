#pragma once

#include <QMimeData>
#include <QPlainTextEdit>

namespace vantorium {

/// A box of several lines of plain text. What is pasted or dropped comes as the text it is.
class TextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  // Left to itself the toolkit turns what is marked up into formatted text, and does not survive an empty clipboard.
  void insertFromMimeData(const QMimeData* source) override {
    if (source == nullptr || !source->hasText() || isReadOnly()) return;
    insertPlainText(source->text());
    ensureCursorVisible();
  }
};

}  // namespace vantorium
