#include "ui/dialogs/frmNewWebServer.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui_frmNewWebServer.h"

namespace vantorium::ui {

frmNewWebServer::frmNewWebServer(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmNewWebServer>()) {
  ui_->setupUi(this);
  ui_->textServerName->setValidator(new OneLineValidator(this));
  ui_->textServerName->setText(ToQt(model_.Text()));
  ui_->textServerName->selectAll();
  connect(ui_->textServerName, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.SetText(FromQt(text));
    ui_->OKButton->setEnabled(model_.CanAccept());
  });
  connect(ui_->OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

frmNewWebServer::~frmNewWebServer() = default;

void frmNewWebServer::accept() {
  model_.Accept();
  QDialog::accept();
}

void frmNewWebServer::reject() {
  model_.Cancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
