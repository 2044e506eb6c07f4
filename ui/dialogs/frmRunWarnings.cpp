#include "ui/dialogs/frmRunWarnings.h"

#include "ui/dialogs/frmRename.h"
#include "ui/model/dialogs/RunWarningsModel.h"
#include "ui/qt/QtText.h"
#include "ui_frmRunWarnings.h"

#include <QSignalBlocker>
#include <algorithm>

namespace vantorium::ui {

frmRunWarnings::frmRunWarnings(RunWarningsModel& model, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmRunWarnings>()) {
  ui_->setupUi(this);
  ShowFindings();
  connect(ui_->listWarnings, &QListWidget::currentRowChanged, this, &frmRunWarnings::Choose);
  connect(ui_->RenameButton, &QPushButton::clicked, this, &frmRunWarnings::Rename);
}

frmRunWarnings::~frmRunWarnings() = default;

/// Once new names have mended everything, nothing is left to warn of.
void frmRunWarnings::ShowFindings() {
  const QSignalBlocker quiet(ui_->listWarnings);
  ui_->listWarnings->clear();
  for (std::size_t i = 0; i < model_.Found().size(); ++i) ui_->listWarnings->addItem(ToQt(model_.Line(i)));
  if (model_.Found().empty()) {
    ui_->lblWarnings->setText("Nothing would go &wrong any more.");
    ui_->CreateButton->setText("Cr&eate");
    ui_->CreateButton->setDefault(true);
  }
  Choose(static_cast<int>(model_.Chosen()));
  ui_->listWarnings->setCurrentRow(static_cast<int>(model_.Chosen()));
}

void frmRunWarnings::Choose(int row) {
  model_.Choose(static_cast<std::size_t>(std::max(row, 0)));
  ui_->RenameButton->setEnabled(model_.CanRename());
}

void frmRunWarnings::Rename() {
  RenameModel name = model_.NameToChange();
  if (frmRename(name, this).exec() != QDialog::Accepted) return;
  model_.Rename(name);
  ShowFindings();
}

}  // namespace vantorium::ui
