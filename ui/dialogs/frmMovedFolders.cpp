#include "ui/dialogs/frmMovedFolders.h"

#include "ui/model/dialogs/MovedFolders.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/PlainToolTip.h"
#include "ui/widgets/ShowText.h"
#include "ui_frmMovedFolders.h"

namespace vantorium::ui {
namespace {

enum Column { OldFolder, NewFolder, ImagesFound };

}  // namespace

frmMovedFolders::frmMovedFolders(MovedFolders& model, FolderBrowser& browser, QWidget* parent)
    : QDialog(parent), model_(model), ui_(std::make_unique<Ui::frmMovedFolders>()) {
  ui_->setupUi(this);
  ui_->textNewFolder->setValidator(new OneLineValidator(this));
  for (const MovedFolders::Row& row : model_.Rows()) {
    auto* const item = new QTreeWidgetItem(ui_->lvFolders, {ToQt(row.from)});
    item->setToolTip(OldFolder, PlainTip(item->text(OldFolder)));
  }
  ShowRows();
  ui_->lvFolders->setCurrentItem(ui_->lvFolders->topLevelItem(static_cast<int>(model_.Chosen())));
  connect(ui_->lvFolders, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    model_.Choose(static_cast<std::size_t>(ui_->lvFolders->indexOfTopLevelItem(item)));
    ShowNewFolder();
  });
  // A click below the rows clears the selection, but the text box still shows the current row.
  connect(ui_->lvFolders, &QTreeWidget::itemSelectionChanged, this, [this] {
    if (ui_->lvFolders->selectedItems().empty()) ui_->lvFolders->currentItem()->setSelected(true);
  });
  connect(ui_->textNewFolder, &QLineEdit::textEdited, this, [this](const QString& text) {
    model_.EditNewFolder(FromQt(text));
    ShowRows();
  });
  connect(ui_->btnBrowse, &QAbstractButton::clicked, this, [this, &browser] {
    model_.Browse(browser);
    ShowRows();
    ShowNewFolder();
  });
  ui_->textNewFolder->setFocus();
}

frmMovedFolders::~frmMovedFolders() = default;

void frmMovedFolders::ShowRows() {
  for (std::size_t i = 0; i < model_.Rows().size(); ++i) {
    const MovedFolders::Row& row = model_.Rows()[i];
    QTreeWidgetItem* const item = ui_->lvFolders->topLevelItem(static_cast<int>(i));
    item->setText(NewFolder, ToQt(model_.Shown(row.to)));
    item->setToolTip(NewFolder, PlainTip(item->text(NewFolder)));
    item->setText(ImagesFound, ToQt(MovedFolders::CountText(row)));
  }
  for (const int column : {OldFolder, NewFolder}) {
    ui_->lvFolders->setColumnWidth(column, ui_->lvFolders->minimumWidth() * 2 / 5);
  }
  ui_->OKButton->setEnabled(model_.CanAccept());
  // Return must not discard what was typed.
  (model_.HasNewFolder() ? ui_->OKButton : ui_->CancelButton)->setDefault(true);
}

void frmMovedFolders::ShowNewFolder() {
  ShowText(*ui_->textNewFolder, model_.Shown(model_.Rows()[model_.Chosen()].to));
}

}  // namespace vantorium::ui
