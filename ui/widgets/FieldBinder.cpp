#include "ui/widgets/FieldBinder.h"

#include "env/PathMap.h"
#include "env/RuntimeFailure.h"
#include "ui/model/dialogs/ColorDialog.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/ColorButton.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/TypedKeys.h"
#include "ui/widgets/UpDown.h"

#include <QRegularExpression>
#include <QSignalBlocker>

namespace vantorium::ui {
namespace {

/// Unlike ShowText, keeps the cursor and emits no signal: the user may be typing in this very control.
void ShowQuietly(QLineEdit& control, const QString& text) {
  if (control.text() == text) return;
  const QSignalBlocker quiet(control);
  const int cursor = control.cursorPosition();
  control.setText(text);
  control.setCursorPosition(cursor);
}

QString WithoutBlanks(const QString& text) {
  QString digits = text;
  digits.removeIf([](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; });
  return digits;
}

/// Removes spaces and line ends, then accepts the text if the number field makes at most six digits of it.
class DigitsValidator : public CleaningValidator {
 public:
  DigitsValidator(core::Digits core::GalleryProject::*field, QObject* parent)
      : CleaningValidator(WithoutBlanks, parent), field_(field) {}

  State validate(QString& text, int& cursor) const override {
    static const QRegularExpression kDigits("^[0-9]{0,6}$");
    CleaningValidator::validate(text, cursor);
    return kDigits.match(ToQt(core::Clamped(field_, FromQt(text)))).hasMatch() ? Acceptable : Invalid;
  }

 private:
  core::Digits core::GalleryProject::*field_;
};

/// A key that is not a digit types nothing; in a pasted text the same character counts.
QString TypedDigit(const QString& /*before*/, const QString& key) {
  return key.size() == 1 && key[0].isPrint() && !key[0].isDigit() ? QString() : key;
}

}  // namespace

void FieldBinder::Bind(QLineEdit& control, std::string core::GalleryProject::*field) {
  BindText(control, field, new OneLineValidator(&control));
}

void FieldBinder::BindText(QLineEdit& control, std::string core::GalleryProject::*field, QValidator* validator) {
  TakeText(control, field, validator);
  show_.push_back(
      [&control, field](const core::GalleryProject& project) { ShowQuietly(control, ToQt(project.*field)); });
}

void FieldBinder::TakeText(QLineEdit& control, std::string core::GalleryProject::*field, QValidator* validator) {
  fields_.push_back(&core::FieldOf(field));
  control.setValidator(validator);
  connect(&control, &QLineEdit::textEdited, this, [this, field](const QString& text) {
    Edit([&](core::ProjectEditor& editor) { editor.Set(field, FromQt(text)); });
  });
}

void FieldBinder::BindPath(QLineEdit& control, const env::PathMap& paths, std::string core::GalleryProject::*field) {
  TakeText(control, field, new OneLineValidator(&control));
  connect(&control, &QLineEdit::editingFinished, this, [this, &control, &paths, field] {
    const std::string& typed = Project().*field;
    const std::string path = paths.ToTextIfNative(typed);
    if (path != typed) Edit([&](core::ProjectEditor& editor) { editor.Set(field, path); });
    ShowQuietly(control, ToQt(paths.Surface(path)));
  });
  // A text that is being typed stays as typed.
  show_.push_back([&control, &paths, field](const core::GalleryProject& project) {
    const QString text = ToQt(project.*field);
    const bool isTyped = control.isModified() && control.text() == text;
    if (!isTyped) ShowQuietly(control, ToQt(paths.Surface(project.*field)));
  });
}

void FieldBinder::Bind(QLineEdit& control, UpDown& spinner, core::Digits core::GalleryProject::*field) {
  BindText(control, field, new DigitsValidator(field, &control));
  new TypedKeys(control, TypedDigit);
  const auto& range = core::FieldOf(field).range.value();
  spinner.Attach(control, range.spinnerMinimum, range.spinnerMaximum);
  connect(&spinner, &UpDown::Stepped, this, [this, field](const QString& text) {
    Edit([&](core::ProjectEditor& editor) { editor.Set(field, FromQt(text)); });
  });
}

void FieldBinder::Bind(QCheckBox& control, core::Flag core::GalleryProject::*field) {
  fields_.push_back(&core::FieldOf(field));
  connect(&control, &QCheckBox::clicked, this, [this, field](bool checked) {
    Edit([&](core::ProjectEditor& editor) { editor.Set(field, core::FlagOf(checked)); });
  });
  show_.push_back([&control, field](const core::GalleryProject& project) {
    const QSignalBlocker quiet(control);
    control.setChecked(!core::IsOff(project.*field));
  });
}

// An action's signals are not blocked: its menu follows them.
void FieldBinder::Bind(QAction& control, core::Flag core::GalleryProject::*field) {
  fields_.push_back(&core::FieldOf(field));
  connect(&control, &QAction::triggered, this, [this, field](bool checked) {
    Edit([&](core::ProjectEditor& editor) { editor.Set(field, static_cast<core::Flag>(checked ? 1 : 0)); });
  });
  show_.push_back([&control, field](const core::GalleryProject& project) { control.setChecked(project.*field != 0); });
}

void FieldBinder::Bind(QComboBox& control, core::Choice core::GalleryProject::*field) {
  Bind(control, field,
       [this, field](core::Choice index) { Edit([&](core::ProjectEditor& editor) { editor.Set(field, index); }); });
}

void FieldBinder::Bind(QComboBox& control, core::Choice core::GalleryProject::*field,
                       std::function<void(core::Choice)> choose) {
  const core::ProjectField& row = core::FieldOf(field);
  fields_.push_back(&row);
  for (const std::string_view text : row.values) control.addItem(ToQt(text));
  connect(&control, &QComboBox::activated, this,
          [choose = std::move(choose)](int index) { choose(static_cast<core::Choice>(index)); });
  show_.push_back([&control, field](const core::GalleryProject& project) {
    const QSignalBlocker quiet(control);
    control.setCurrentIndex(project.*field);
  });
}

void FieldBinder::Bind(ColorButton& control, ColorDialog& dialog, core::Color core::GalleryProject::*field) {
  fields_.push_back(&core::FieldOf(field));
  connect(&control, &ColorButton::clicked, this, [this, &dialog, field] {
    core::Color color = Project().*field;
    if (dialog.DisplayColorDialog2(color)) Edit([&](core::ProjectEditor& editor) { editor.Set(field, color); });
  });
  show_.push_back([&control, field](const core::GalleryProject& project) { control.SetColor(project.*field); });
}

void FieldBinder::Edit(const std::function<void(core::ProjectEditor&)>& edit) {
  try {
    edit(editor_);
  } catch (const env::RuntimeFailure& failure) {
    boxes_.Critical("Invalid Value", failure.Description());
  }
  Refresh();
  emit Edited();
}

void FieldBinder::Refresh() {
  for (const auto& show : show_) show(editor_.Project());
}

}  // namespace vantorium::ui
