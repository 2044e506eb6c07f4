#include "ui/dialogs/frmAddBrowser.h"

#include "ui/model/dialogs/BrowserEntry.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/ShowText.h"
#include "ui_frmAddBrowser.h"

namespace vantorium::ui {

frmAddBrowser::frmAddBrowser(BrowserEntry& entry, FileBrowser& files, const env::PathMap& paths,
                             std::string programFolder, QWidget* parent)
    : QDialog(parent),
      entry_(entry),
      files_(files),
      paths_(paths),
      programFolder_(std::move(programFolder)),
      ui_(std::make_unique<Ui::frmAddBrowser>()) {
  ui_->setupUi(this);
  setWindowTitle(ToQt(entry_.Title()));
  for (QLineEdit* box : {ui_->browserName, ui_->browserLocation}) box->setValidator(new OneLineValidator(box));
  ui_->browserName->setText(ToQt(entry_.Texts().Name));
  ui_->browserLocation->setText(ToQt(entry_.Texts().Location));
  EnableOK();
  connect(ui_->browserName, &QLineEdit::textChanged, this, [this](const QString& text) {
    entry_.ChangeName(FromQt(text));
    EnableOK();
  });
  connect(ui_->browserLocation, &QLineEdit::textChanged, this, &frmAddBrowser::ChangeLocation);
  connect(ui_->browserLocation, &QLineEdit::editingFinished, this, &frmAddBrowser::ShowLocationAsPathText);
  connect(ui_->btnBrowse, &QAbstractButton::clicked, this, &frmAddBrowser::Browse);
}

frmAddBrowser::~frmAddBrowser() = default;

void frmAddBrowser::ChangeLocation() {
  entry_.ChangeLocation(FromQt(ui_->browserLocation->text()));
  EnableOK();
}

void frmAddBrowser::ShowLocationAsPathText() {
  entry_.LeaveLocation(paths_);
  ShowText(*ui_->browserLocation, entry_.Texts().Location);
}

void frmAddBrowser::Browse() {
  const FileDialogResult chosen = files_.DisplayFileDialog({.title = "Select Location of the Browser's Executable",
                                                            .initialFolder = programFolder_,
                                                            .filter = "Executables (*.exe)|*.exe"});
  if (chosen.result.empty()) return;
  ui_->browserLocation->setText(ToQt(chosen.result));
  entry_.TakeExecutable(chosen.result);
  EnableOK();
  ui_->OKButton->setFocus();
}

void frmAddBrowser::EnableOK() {
  ui_->OKButton->setEnabled(entry_.IsOKEnabled());
}

void frmAddBrowser::accept() {
  ShowLocationAsPathText();
  entry_.PressOK();
  QDialog::accept();
}

void frmAddBrowser::reject() {
  entry_.PressCancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
