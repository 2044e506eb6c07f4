#pragma once

#include "ui/model/TypedName.h"
#include "ui/ports/QtText.h"

#include <QValidator>

namespace vantorium {

/// Keeps the text of a field what can be the name of an image, whether it is typed or pasted.
class TypedNameValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override {
    cursor = static_cast<int>(Typed(text.left(cursor)).size());
    text = Typed(text);
    return Acceptable;
  }

 private:
  static QString Typed(const QString& text) { return ToQt(TypedName(FromQt(text))); }
};

}  // namespace vantorium
