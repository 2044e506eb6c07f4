#include "ui/dialogs/frmTempFolderLocation.h"

#include "core/Choices.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/ShowText.h"
#include "ui_frmTempFolderLocation.h"

namespace vantorium::ui {

frmTempFolderLocation::frmTempFolderLocation(TempFolderLocation& model, FolderBrowser& folders, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmTempFolderLocation>()) {
  ui_->setupUi(this);
  ui_->textTempFolderLocation->setValidator(new OneLineValidator(this));
  ShowModel();
  ui_->textTempFolderLocation->selectAll();
  connect(ui_->textTempFolderLocation, &QLineEdit::textEdited, this,
          [this](const QString& text) { model_.textTempFolderLocation = FromQt(text); });
  connect(ui_->textTempFolderLocation, &QLineEdit::editingFinished, this, [this] {
    model_.TakeNativePath();
    ShowModel();
  });
  connect(ui_->checkAutoClear, &QCheckBox::toggled, this,
          [this](bool on) { model_.checkAutoClear = core::FlagOf(on); });
  connect(ui_->btnBrowse, &QAbstractButton::clicked, this, [this, &folders] {
    model_.Browse(folders);
    ShowModel();
  });
  connect(ui_->btnReset, &QPushButton::clicked, this, [this] {
    model_.Reset();
    ShowModel();
  });
}

frmTempFolderLocation::~frmTempFolderLocation() = default;

void frmTempFolderLocation::accept() {
  const bool accepted = model_.Accept();
  ShowModel();
  if (accepted) return QDialog::accept();
  ui_->textTempFolderLocation->setFocus();
  ui_->textTempFolderLocation->selectAll();
}

void frmTempFolderLocation::ShowModel() {
  ShowText(*ui_->textTempFolderLocation, model_.Shown());
  ui_->checkAutoClear->setChecked(!core::IsOff(model_.checkAutoClear));
}

bool EditTempFolderLocation(env::Preferences& preferences, const std::string& appPath, env::MessageBoxPort& boxes,
                            const env::mFileFunctions& files, FolderBrowser& folders, QWidget* owner) {
  if (preferences.TempFolderLocation.empty()) preferences.TempFolderLocation = appPath;
  TempFolderLocation model(preferences, appPath, files, boxes);
  if (frmTempFolderLocation(model, folders, owner).exec() != QDialog::Accepted) return false;
  model.StoreIn(preferences);
  return true;
}

}  // namespace vantorium::ui
