#include "ui/dialogs/frmFileNameSettings.h"

#include "ui/widgets/FieldBinder.h"
#include "ui/widgets/NameBox.h"
#include "ui_frmFileNameSettings.h"

namespace vantorium::ui {

frmFileNameSettings::frmFileNameSettings(FieldBinder& binder, QWidget* parent)
    : QDialog(parent), binder_(binder), ui_(std::make_unique<Ui::frmFileNameSettings>()) {
  ui_->setupUi(this);
  for (const NameField& name : FileNameFields()) {
    auto* box = names_.emplace_back(new NameBox(*this, name));
    box->Show(binder_.Project());
    connect(box, &NameBox::Edited, this,
            [this, &name] { binder_.Edit([&](core::ProjectEditor& editor) { MarkEdited(name, editor); }); });
  }
  connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::accept);
}

frmFileNameSettings::~frmFileNameSettings() = default;

void frmFileNameSettings::done(int result) {
  binder_.Edit([this](core::ProjectEditor& editor) {
    for (const NameBox* box : names_) box->Store(editor);
  });
  QDialog::done(result);
}

}  // namespace vantorium::ui
