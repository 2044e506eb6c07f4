#pragma once

#include "ui/widgets/CleaningValidator.h"

namespace vantorium::ui {

/// Keeps a field's text on one line: removes control characters, such as a line end that was copied with a path or
/// name.
class OneLineValidator : public CleaningValidator {
 public:
  explicit OneLineValidator(QObject* parent) : CleaningValidator(OneLine, parent) {}

 private:
  static QString OneLine(const QString& text) {
    QString line = text;
    line.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    return line;
  }
};

}  // namespace vantorium::ui
