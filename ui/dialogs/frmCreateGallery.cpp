#include "ui/dialogs/frmCreateGallery.h"

#include "ui/dialogs/frmPublish.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/FocusLoss.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/ShowText.h"
#include "ui/widgets/TypedKeys.h"
#include "ui_frmCreateGallery.h"

namespace vantorium::ui {

frmCreateGallery::frmCreateGallery(const Parts& parts, QWidget* parent)
    : QDialog(parent),
      parts_(parts),
      model_(parts.preferences, parts.serverListFile, parts.paths, parts.boxes),
      ui_(std::make_unique<Ui::frmCreateGallery>()) {
  ui_->setupUi(this);
  BindOption(*ui_->optionCreateGallery, Option::Create);
  BindOption(*ui_->optionUploadGallery, Option::Publish);
  BindOption(*ui_->optionUploadFolder, Option::Upload);
  BindSwitch(*ui_->checkCreateImages, &generation::RunOrder::CreateImages);
  BindSwitch(*ui_->checkCreateThumbnails, &generation::RunOrder::CreateThumbnails);
  BindSwitch(*ui_->checkCreateHTMLFiles, &generation::RunOrder::CreateHTML);
  BindSwitch(*ui_->checkOverwrite, &generation::RunOrder::Overwrite);
  BindSwitch(*ui_->checkOnlyChanges, &generation::RunOrder::OnlyChanges);
  BindSwitch(*ui_->checkRemoveUnused, &generation::RunOrder::RemoveUnused);
  BindPath(*ui_->textCreateFilePath, &CreateGalleryModel::EditFilePath);
  BindPath(*ui_->textUploadSourceFolder, &CreateGalleryModel::EditSourceFolder);
  BindText(*ui_->textPublishDestination, &CreateGalleryModel::EditPublishDestination);
  BindText(*ui_->textUploadDestination, &CreateGalleryModel::EditUploadDestination);
  BindText(*ui_->textPublishPassword, &CreateGalleryModel::EditPassword);
  BindText(*ui_->textUploadPassword, &CreateGalleryModel::EditPassword);
  ConnectButtons();
  ShowEnabled();
}

frmCreateGallery::~frmCreateGallery() = default;

void frmCreateGallery::ConnectButtons() {
  connect(ui_->btnBrowseCreateFilePath, &QAbstractButton::clicked, this, [this] {
    model_.BrowseFilePath(parts_.fileBrowser);
    ShowTexts();
  });
  connect(ui_->btnBrowsePublishDestination, &QAbstractButton::clicked, this,
          [this] { BrowseServer(/*hideIndexFile=*/false, *ui_->textPublishPassword); });
  connect(ui_->btnBrowseUploadDestination, &QAbstractButton::clicked, this,
          [this] { BrowseServer(/*hideIndexFile=*/true, *ui_->textUploadPassword); });
  connect(ui_->btnBrowseUploadSourceFolder, &QAbstractButton::clicked, this, &frmCreateGallery::BrowseSourceFolder);
  connect(ui_->OKButton, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

void frmCreateGallery::BindOption(QRadioButton& control, Option option) {
  connect(&control, &QRadioButton::toggled, this, [this, option](bool chosen) {
    if (!chosen) return;
    model_.Choose(option);
    ShowEnabled();
  });
}

void frmCreateGallery::BindSwitch(QCheckBox& control, CreateGalleryModel::Switch box) {
  connect(&control, &QCheckBox::toggled, this, [this, box](bool checked) {
    model_.Check(box, checked);
    ui_->checkOverwrite->setEnabled(model_.CanOverwrite());
    ui_->checkRemoveUnused->setEnabled(model_.CanRemoveUnused());
  });
}

void frmCreateGallery::BindText(QLineEdit& control, Edit edit) {
  control.setValidator(new OneLineValidator(&control));
  connect(&control, &QLineEdit::textEdited, this, [this, edit](const QString& text) {
    (model_.*edit)(FromQt(text));
    ShowPasswords();
  });
}

void frmCreateGallery::BindPath(QLineEdit& control, Edit edit) {
  new TypedKeys(control,
                [](const QString& before, const QString& key) { return ToQt(PathKey(FromQt(before), FromQt(key))); });
  BindText(control, edit);
  control.installEventFilter(this);
}

std::optional<generation::RunOrder> frmCreateGallery::Ask() {
  model_.ComeUp();
  ShowTexts();
  for (QRadioButton* option : {ui_->optionCreateGallery, ui_->optionUploadGallery, ui_->optionUploadFolder}) {
    if (option->isChecked()) option->setFocus();
  }
  exec();
  return model_.Order();
}

void frmCreateGallery::ShowTexts() {
  ShowText(*ui_->textCreateFilePath, parts_.paths.Surface(model_.FilePath()));
  ShowText(*ui_->textUploadSourceFolder, parts_.paths.Surface(model_.SourceFolder()));
  ShowText(*ui_->textPublishDestination, model_.PublishDestination());
  ShowText(*ui_->textUploadDestination, model_.UploadDestination());
  ShowPasswords();
}

void frmCreateGallery::ShowPasswords() {
  for (QLineEdit* control : {ui_->textPublishPassword, ui_->textUploadPassword}) {
    control->setEchoMode(model_.IsPasswordHidden() ? QLineEdit::Password : QLineEdit::Normal);
    ShowText(*control, model_.Password());
  }
}

void frmCreateGallery::ShowEnabled() {
  EnableFields();
  for (QWidget* control : std::initializer_list<QWidget*>{ui_->frmOptions, ui_->checkCreateImages,
                                                          ui_->checkCreateThumbnails, ui_->checkCreateHTMLFiles}) {
    control->setEnabled(model_.Produces());
  }
  ui_->checkOverwrite->setEnabled(model_.CanOverwrite());
  ui_->checkRemoveUnused->setEnabled(model_.CanRemoveUnused());
  ShowCaptions();
}

void frmCreateGallery::EnableFields() {
  const auto enable = [this](Option option, std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) control->setEnabled(model_.Chosen() == option);
  };
  enable(Option::Create, {ui_->lblCreateFilePath, ui_->textCreateFilePath, ui_->btnBrowseCreateFilePath});
  enable(Option::Publish, {ui_->lblPublishDestination, ui_->textPublishDestination, ui_->btnBrowsePublishDestination,
                           ui_->lblPublishPassword, ui_->textPublishPassword});
  enable(Option::Upload, {ui_->lblUploadDestination, ui_->textUploadDestination, ui_->btnBrowseUploadDestination,
                          ui_->lblUploadPassword, ui_->textUploadPassword, ui_->lblUploadSourceFolder,
                          ui_->textUploadSourceFolder, ui_->btnBrowseUploadSourceFolder});
}

/// Highlights the chosen option in the system's current colors.
void frmCreateGallery::ShowCaptions() {
  for (QRadioButton* option : {ui_->optionCreateGallery, ui_->optionUploadGallery, ui_->optionUploadFolder}) {
    QPalette colors;
    const auto caption = option->isChecked() ? QPalette::Highlight : QPalette::ButtonText;
    colors.setColor(QPalette::WindowText, palette().color(QPalette::Active, caption));
    option->setPalette(colors);
  }
}

void frmCreateGallery::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ShowCaptions();
}

void frmCreateGallery::BrowseServer(bool hideIndexFile, QWidget& password) {
  frmPublish servers(parts_.serverListFile, parts_.boxes, this);
  servers.SetHideIndexFile(hideIndexFile);
  connect(&servers, &frmPublish::Left, this, [this, &servers] {
    model_.LeaveServers(servers.Shown());
    ShowPasswords();
  });
  servers.exec();
  if (servers.QueryPublish()) model_.TakeServer(servers.Shown());
  ShowTexts();
  password.setFocus();
}

void frmCreateGallery::BrowseSourceFolder() {
  if (!model_.BrowseSourceFolder(parts_.folderBrowser)) return;
  ShowTexts();
  ui_->textUploadPassword->setFocus();
}

bool frmCreateGallery::eventFilter(QObject* watched, QEvent* event) {
  if (LeavesControl(*event)) {
    watched == ui_->textCreateFilePath ? model_.LeaveFilePath() : model_.LeaveSourceFolder();
    ShowTexts();
  }
  return QDialog::eventFilter(watched, event);
}

void frmCreateGallery::accept() {
  const ApplyResult result = model_.Apply();
  ShowTexts();
  if (result == ApplyResult::Done) return QDialog::accept();
  if (result == ApplyResult::NoSourceFolder) ui_->textUploadSourceFolder->setFocus();
  if (result == ApplyResult::NoDestination) {
    (model_.Chosen() == Option::Publish ? ui_->textPublishDestination : ui_->textUploadDestination)->setFocus();
  }
}

void frmCreateGallery::reject() {
  model_.Cancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
