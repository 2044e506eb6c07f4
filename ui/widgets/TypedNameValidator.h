#pragma once

#include "ui/model/dialogs/TypedName.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/CleaningValidator.h"

namespace vantorium::ui {

/// Restricts a field's text, typed or pasted, to what can be the name of an image.
class TypedNameValidator : public CleaningValidator {
 public:
  explicit TypedNameValidator(QObject* parent)
      : CleaningValidator([](const QString& text) { return ToQt(TypedName(FromQt(text))); }, parent) {}
};

}  // namespace vantorium::ui
