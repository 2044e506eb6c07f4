#include "ui/dialogs/frmAddBrowser.h"

#include "ui/model/dialogs/BrowserEntry.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/ShowText.h"
#include "ui_frmAddBrowser.h"

#include <QSignalBlocker>

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
  ShowLocation();
  EnableOK();
  connect(ui_->browserName, &QLineEdit::textChanged, this, [this](const QString& text) {
    entry_.ChangeName(FromQt(text));
    EnableOK();
  });
  connect(ui_->browserLocation, &QLineEdit::textChanged, this, &frmAddBrowser::ChangeLocation);
  connect(ui_->browserLocation, &QLineEdit::editingFinished, this, &frmAddBrowser::LeaveLocation);
  connect(ui_->btnBrowse, &QAbstractButton::clicked, this, &frmAddBrowser::Browse);
}

frmAddBrowser::~frmAddBrowser() = default;

void frmAddBrowser::ChangeLocation() {
  entry_.ChangeLocation(FromQt(ui_->browserLocation->text()));
  EnableOK();
}

void frmAddBrowser::LeaveLocation() {
  entry_.LeaveLocation(paths_);
  ShowLocation();
}

/// Quietly: only what the user types changes the entry.
void frmAddBrowser::ShowLocation() {
  const QSignalBlocker quiet(ui_->browserLocation);
  ShowText(*ui_->browserLocation, paths_.Surface(entry_.Texts().Location));
}

void frmAddBrowser::Browse() {
  const FileDialogResult chosen = files_.DisplayFileDialog({.title = "Select Location of the Browser's Executable",
                                                            .initialFolder = programFolder_,
                                                            .filter = "Executables (*.exe)|*.exe"});
  if (chosen.result.empty()) return;
  entry_.TakeExecutable(chosen.result);
  ShowLocation();
  EnableOK();
  ui_->OKButton->setFocus();
}

void frmAddBrowser::EnableOK() {
  ui_->OKButton->setEnabled(entry_.IsOKEnabled());
}

void frmAddBrowser::accept() {
  LeaveLocation();
  entry_.PressOK();
  QDialog::accept();
}

void frmAddBrowser::reject() {
  entry_.PressCancel();
  QDialog::reject();
}

}  // namespace vantorium::ui
