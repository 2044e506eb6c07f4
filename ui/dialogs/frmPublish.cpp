#include "ui/dialogs/frmPublish.h"

#include "ui/dialogs/frmNewWebServer.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/TypedKeys.h"
#include "ui_frmPublish.h"

#include <QSignalBlocker>

namespace vantorium::ui {

frmPublish::frmPublish(std::filesystem::path serverListFile, env::MessageBoxPort& boxes, QWidget* parent)
    : QDialog(parent), model_(std::move(serverListFile), boxes), ui_(std::make_unique<Ui::frmPublish>()) {
  ui_->setupUi(this);
  BindField(*ui_->textServerURL, &publish::ServerProfile::ServerURL);
  BindField(*ui_->textUserName, &publish::ServerProfile::UserName);
  BindField(*ui_->textJumpTo, &publish::ServerProfile::JumpTo);
  BindField(*ui_->textGalleryIndexPath, &publish::ServerProfile::IndexPath);
  BindField(*ui_->textGalleryIndexFile, &publish::ServerProfile::IndexFile);
  connect(ui_->textTimeout, &QLineEdit::textEdited, this,
          [this](const QString& text) { model_.textTimeout = FromQt(text); });
  connect(ui_->comboServers, &QComboBox::currentIndexChanged, this, [this](int index) {
    model_.Select(static_cast<std::size_t>(index));
    ShowProfile();
  });
  BindSwitch(*ui_->checkPassive, &publish::ServerProfile::Passive);
  BindSwitch(*ui_->checkEncrypted, &publish::ServerProfile::Encrypted);
  connect(ui_->btnForgetCertificate, &QPushButton::clicked, this, [this] {
    model_.ForgetCertificate();
    ShowProfile();
    ui_->checkEncrypted->setFocus();
  });
  connect(ui_->btnNew, &QPushButton::clicked, this, &frmPublish::AddNew);
  connect(ui_->btnDelete, &QPushButton::clicked, this, [this] {
    model_.DeleteServer();
    ShowList();
  });
  connect(ui_->OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
  ShowList();
}

frmPublish::~frmPublish() = default;

void frmPublish::BindField(QLineEdit& control, ServerField field) {
  control.setValidator(new OneLineValidator(&control));
  new TypedKeys(control,
                [field](const QString& /*before*/, const QString& key) { return ToQt(ServerKey(field, FromQt(key))); });
  connect(&control, &QLineEdit::textEdited, this, [this, field](const QString& text) {
    model_.Edit(field, FromQt(text));
    ShowButtons();
  });
}

void frmPublish::BindSwitch(QCheckBox& control, ServerSwitch box) {
  connect(&control, &QCheckBox::clicked, this, [this, box](bool checked) { model_.Check(box, checked); });
}

void frmPublish::SetHideIndexFile(bool hide) {
  model_.HideIndexFile = hide;
  ui_->lblGalleryIndexFile->setVisible(!hide);
  ui_->textGalleryIndexFile->setVisible(!hide);
}

void frmPublish::ShowList() {
  const QSignalBlocker quiet(ui_->comboServers);
  ui_->comboServers->clear();
  for (const publish::ServerProfile& profile : model_.Profiles()) ui_->comboServers->addItem(ToQt(profile.ServerName));
  ShowProfile();
}

void frmPublish::ShowProfile() {
  const QSignalBlocker quiet(ui_->comboServers);
  const auto selected = model_.Selected();
  ui_->comboServers->setCurrentIndex(selected ? static_cast<int>(*selected) : -1);
  const publish::ServerProfile& profile = model_.Shown();
  ui_->textServerURL->setText(ToQt(profile.ServerURL));
  ui_->textUserName->setText(ToQt(profile.UserName));
  ui_->textJumpTo->setText(ToQt(profile.JumpTo));
  ui_->textGalleryIndexPath->setText(ToQt(profile.IndexPath));
  ui_->textGalleryIndexFile->setText(ToQt(profile.IndexFile));
  ui_->textTimeout->setText(ToQt(model_.textTimeout));
  ui_->checkPassive->setChecked(profile.Passive);
  ui_->checkEncrypted->setChecked(profile.Encrypted);
  ShowButtons();
}

void frmPublish::ShowButtons() {
  ui_->frmServer->setEnabled(model_.Selected().has_value());
  ui_->comboServers->setEnabled(model_.Selected().has_value());
  ui_->btnForgetCertificate->setEnabled(model_.CanForgetCertificate());
  ui_->btnDelete->setEnabled(model_.CanDelete());
  ui_->OKButton->setEnabled(model_.CanAccept());
  ui_->CancelButton->setEnabled(model_.CanCancel());
}

void frmPublish::AddNew() {
  frmNewWebServer question(this);
  question.exec();
  if (question.IsCancelled() || !model_.AddNewServer(question.GetServerName())) return;
  ShowList();
  ui_->textServerURL->setFocus();
}

void frmPublish::accept() {
  const bool accepted = model_.Accept();
  ShowProfile();
  if (accepted) return QDialog::accept();
  ui_->textGalleryIndexFile->setFocus();
}

/// Escape and the title bar cancel too, even when the button is disabled.
void frmPublish::reject() {
  model_.Cancel();
  ShowProfile();
  QDialog::reject();
}

bool frmPublish::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide) emit Left();
  return handled;
}

}  // namespace vantorium::ui
