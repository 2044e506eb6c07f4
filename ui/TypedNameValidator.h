#pragma once

#include "ui/CleaningValidator.h"
#include "ui/model/TypedName.h"
#include "ui/ports/QtText.h"

namespace vantorium {

/// Keeps the text of a field what can be the name of an image, whether it is typed or pasted.
class TypedNameValidator : public CleaningValidator {
 public:
  explicit TypedNameValidator(QObject* parent)
      : CleaningValidator([](const QString& text) { return ToQt(TypedName(FromQt(text))); }, parent) {}
};

}  // namespace vantorium
