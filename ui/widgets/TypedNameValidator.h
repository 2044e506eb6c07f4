#pragma once

#include "ui/model/dialogs/TypedName.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/CleaningValidator.h"

namespace vantorium {

/// Keeps the text of a field what can be the name of an image, whether it is typed or pasted.
class TypedNameValidator : public CleaningValidator {
 public:
  explicit TypedNameValidator(QObject* parent)
      : CleaningValidator([](const QString& text) { return ToQt(TypedName(FromQt(text))); }, parent) {}
};

}  // namespace vantorium
