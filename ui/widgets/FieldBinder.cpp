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

namespace vantorium {
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
  DigitsValidator(Digits GalleryProject::*field, QObject* parent)
      : CleaningValidator(WithoutBlanks, parent), field_(field) {}

  State validate(QString& text, int& cursor) const override {
    static const QRegularExpression kDigits("^[0-9]{0,6}$");
    CleaningValidator::validate(text, cursor);
    return kDigits.match(ToQt(Clamped(field_, FromQt(text)))).hasMatch() ? Acceptable : Invalid;
  }

 private:
  Digits GalleryProject::*field_;
};

/// A key that is not a digit types nothing; in a pasted text the same character counts.
QString TypedDigit(const QString& /*before*/, const QString& key) {
  return key.size() == 1 && key[0].isPrint() && !key[0].isDigit() ? QString() : key;
}

}  // namespace

void FieldBinder::Bind(QLineEdit& control, std::string GalleryProject::*field) {
  BindText(control, field, new OneLineValidator(&control));
}

void FieldBinder::BindText(QLineEdit& control, std::string GalleryProject::*field, QValidator* validator) {
  fields_.push_back(&FieldOf(field));
  control.setValidator(validator);
  connect(&control, &QLineEdit::textEdited, this, [this, field](const QString& text) {
    Edit([&](ProjectEditor& editor) { editor.Set(field, FromQt(text)); });
  });
  show_.push_back([&control, field](const GalleryProject& project) { ShowQuietly(control, ToQt(project.*field)); });
}

void FieldBinder::BindPath(QLineEdit& control, const PathMap& paths, std::string GalleryProject::*field) {
  Bind(control, field);
  connect(&control, &QLineEdit::editingFinished, this, [this, &paths, field] {
    const std::string& typed = Project().*field;
    const std::string path = paths.ToTextIfNative(typed);
    if (path != typed) Edit([&](ProjectEditor& editor) { editor.Set(field, path); });
  });
}

void FieldBinder::Bind(QLineEdit& control, UpDown& spinner, Digits GalleryProject::*field) {
  BindText(control, field, new DigitsValidator(field, &control));
  new TypedKeys(control, TypedDigit);
  const auto& range = FieldOf(field).range.value();
  spinner.Attach(control, range.spinnerMinimum, range.spinnerMaximum);
  connect(&spinner, &UpDown::Stepped, this, [this, field](const QString& text) {
    Edit([&](ProjectEditor& editor) { editor.Set(field, FromQt(text)); });
  });
}

void FieldBinder::Bind(QCheckBox& control, Flag GalleryProject::*field) {
  fields_.push_back(&FieldOf(field));
  connect(&control, &QCheckBox::clicked, this,
          [this, field](bool checked) { Edit([&](ProjectEditor& editor) { editor.Set(field, FlagOf(checked)); }); });
  show_.push_back([&control, field](const GalleryProject& project) {
    const QSignalBlocker quiet(control);
    control.setChecked(!IsOff(project.*field));
  });
}

// An action's signals are not blocked: its menu follows them.
void FieldBinder::Bind(QAction& control, Flag GalleryProject::*field) {
  fields_.push_back(&FieldOf(field));
  connect(&control, &QAction::triggered, this, [this, field](bool checked) {
    Edit([&](ProjectEditor& editor) { editor.Set(field, static_cast<Flag>(checked ? 1 : 0)); });
  });
  show_.push_back([&control, field](const GalleryProject& project) { control.setChecked(project.*field != 0); });
}

void FieldBinder::Bind(QComboBox& control, Choice GalleryProject::*field) {
  Bind(control, field, [this, field](Choice index) { Edit([&](ProjectEditor& editor) { editor.Set(field, index); }); });
}

void FieldBinder::Bind(QComboBox& control, Choice GalleryProject::*field, std::function<void(Choice)> choose) {
  const ProjectField& row = FieldOf(field);
  fields_.push_back(&row);
  for (const std::string_view text : row.values) control.addItem(ToQt(text));
  connect(&control, &QComboBox::activated, this,
          [choose = std::move(choose)](int index) { choose(static_cast<Choice>(index)); });
  show_.push_back([&control, field](const GalleryProject& project) {
    const QSignalBlocker quiet(control);
    control.setCurrentIndex(project.*field);
  });
}

void FieldBinder::Bind(ColorButton& control, ColorDialog& dialog, Color GalleryProject::*field) {
  fields_.push_back(&FieldOf(field));
  connect(&control, &ColorButton::clicked, this, [this, &dialog, field] {
    Color color = Project().*field;
    if (dialog.DisplayColorDialog2(color)) Edit([&](ProjectEditor& editor) { editor.Set(field, color); });
  });
  show_.push_back([&control, field](const GalleryProject& project) { control.SetColor(project.*field); });
}

void FieldBinder::Edit(const std::function<void(ProjectEditor&)>& edit) {
  try {
    edit(editor_);
  } catch (const RuntimeFailure& failure) {
    boxes_.Critical("Invalid Value", failure.Description());
  }
  Refresh();
  emit Edited();
}

void FieldBinder::Refresh() {
  for (const auto& show : show_) show(editor_.Project());
}

}  // namespace vantorium
