#pragma once

#include "ui/widgets/CleaningValidator.h"

namespace vantorium {

/// Keeps the text of a field on one line, whatever is pasted into it: a path or a name that was copied with the end of
/// its line loses that.
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

}  // namespace vantorium
