#include "ui/dialogs/frmRename.h"

#include "ui/model/dialogs/RenameModel.h"
#include "ui/widgets/TypedNameValidator.h"
#include "ui_frmRename.h"

namespace vantorium::ui {

frmRename::frmRename(RenameModel& model, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmRename>()) {
  ui_->setupUi(this);
  ui_->textNameBase->setText(ToQt(model_.NameBase()));
  ui_->textNameBase->selectAll();
  ui_->textNameBase->setValidator(new TypedNameValidator(this));
  ui_->CheckRenameAll->setChecked(model_.RenameAll);
  ui_->OKButton->setEnabled(model_.CanAccept());
  connect(ui_->textNameBase, &QLineEdit::textChanged, this, &frmRename::TakeNameBase);
  connect(ui_->CheckRenameAll, &QCheckBox::toggled, this, [this](bool all) { model_.RenameAll = all; });
}

frmRename::~frmRename() = default;

void frmRename::TakeNameBase(const QString& nameBase) {
  model_.SetNameBase(FromQt(nameBase));
  ui_->OKButton->setEnabled(model_.CanAccept());
}

void frmRename::accept() {
  model_.Accept();
  QDialog::accept();
}

void frmRename::reject() {
  model_.Cancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
