#pragma once

#include <QValidator>

namespace vantorium::ui {

/// Cleans a field's text as it is typed or pasted. The cursor stays where it was.
class CleaningValidator : public QValidator {
 public:
  using Clean = QString (*)(const QString& text);

  CleaningValidator(Clean clean, QObject* parent) : QValidator(parent), clean_(clean) {}

  State validate(QString& text, int& cursor) const override {
    cursor = static_cast<int>(clean_(text.left(cursor)).size());
    text = clean_(text);
    return Acceptable;
  }

 private:
  Clean clean_;
};

}  // namespace vantorium::ui
