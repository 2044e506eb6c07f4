#pragma once

#include <QValidator>

namespace vantorium {

/// Keeps the text of a field on one line, whatever is pasted into it: a path or a name that was copied with the end of
/// its line loses that.
class OneLineValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override {
    cursor = static_cast<int>(OneLine(text.left(cursor)).size());
    text = OneLine(text);
    return Acceptable;
  }

 private:
  static QString OneLine(QString text) {
    text.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    return text;
  }
};

}  // namespace vantorium
