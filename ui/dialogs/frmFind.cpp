#include "ui/dialogs/frmFind.h"

#include "ui/model/dialogs/FindModel.h"
#include "ui/widgets/TypedNameValidator.h"
#include "ui_frmFind.h"

namespace vantorium::ui {

frmFind::frmFind(FindModel& model, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmFind>()) {
  ui_->setupUi(this);
  model_.Open();
  ui_->textTitle->setText(ToQt(model_.Title()));
  ui_->textTitle->selectAll();
  ui_->textTitle->setValidator(new TypedNameValidator(this));
  ui_->OKButton->setEnabled(model_.CanFind());
  connect(ui_->textTitle, &QLineEdit::textChanged, this, &frmFind::TakeTitle);
}

frmFind::~frmFind() = default;

void frmFind::TakeTitle(const QString& title) {
  model_.SetTitle(FromQt(title));
  ui_->OKButton->setEnabled(model_.CanFind());
}

void frmFind::accept() {
  model_.Accept();
  QDialog::accept();
}

void frmFind::reject() {
  model_.Cancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
