#include "ui/dialogs/frmFrameNameSettings.h"

#include "ui/widgets/FieldBinder.h"
#include "ui/widgets/NameBox.h"
#include "ui_frmFrameNameSettings.h"

namespace vantorium::ui {

frmFrameNameSettings::frmFrameNameSettings(FieldBinder& binder, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmFrameNameSettings>()) {
  ui_->setupUi(this);
  for (const NameField& name : FrameNameFields()) {
    auto* box = new NameBox(*this, name);
    box->Show(binder.Project());
    connect(box, &NameBox::Edited, this,
            [box, &binder] { binder.Edit([box](core::ProjectEditor& editor) { box->Store(editor); }); });
  }
  connect(ui_->btnClose, &QPushButton::clicked, this, &QDialog::accept);
}

frmFrameNameSettings::~frmFrameNameSettings() = default;

}  // namespace vantorium::ui
