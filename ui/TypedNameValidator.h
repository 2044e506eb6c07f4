#pragma once

#include "ui/model/TypedName.h"
#include "ui/ports/QtText.h"

#include <QValidator>

namespace vantorium {

/// Keeps the text of a field what can be the name of an image, whether it is typed or pasted.
class TypedNameValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& /*cursor*/) const override {
    text = ToQt(TypedName(FromQt(text)));
    return Acceptable;
  }
};

}  // namespace vantorium
