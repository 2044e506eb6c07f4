#include "ui/dialogs/frmBrowserList.h"

#include "ui/model/dialogs/BrowserList.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/PlainToolTip.h"
#include "ui_frmBrowserList.h"

#include <QKeyEvent>
#include <QShowEvent>
#include <QSignalBlocker>

namespace vantorium::ui {

frmBrowserList::frmBrowserList(BrowserList& list, const env::PathMap& paths, QWidget* parent)
    : QDialog(parent), list_(list), paths_(paths), ui_(std::make_unique<Ui::frmBrowserList>()) {
  ui_->setupUi(this);
  ui_->lvBrowsers->installEventFilter(this);
  ShowEntries();
  connect(ui_->lvBrowsers, &QTreeWidget::itemSelectionChanged, this, &frmBrowserList::Select);
  connect(ui_->lvBrowsers, &QTreeWidget::itemDoubleClicked, this, [this] { Press(&BrowserList::PressEdit); });
  connect(ui_->btnAddBrowser, &QPushButton::clicked, this, [this] { Press(&BrowserList::PressAdd); });
  connect(ui_->btnEditBrowser, &QPushButton::clicked, this, [this] { Press(&BrowserList::PressEdit); });
  connect(ui_->btnRemoveBrowser, &QPushButton::clicked, this, [this] { Press(&BrowserList::PressRemove); });
}

frmBrowserList::~frmBrowserList() = default;

void frmBrowserList::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  const int width = ui_->lvBrowsers->width();
  ui_->lvBrowsers->setColumnWidth(0, width * 3 / 10);
  ui_->lvBrowsers->setColumnWidth(1, width * 6 / 10);
}

// An arrow key selects the row that it moves to. A key that cannot move selects the row that only has the focus:
// otherwise a list's only row could never be selected with the keyboard.
bool frmBrowserList::eventFilter(QObject* watched, QEvent* event) {
  QTreeWidgetItem* current = ui_->lvBrowsers->currentItem();
  if (event->type() == QEvent::KeyPress && current != nullptr && !current->isSelected()) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool leadsNowhere = (key == Qt::Key_Up && ui_->lvBrowsers->itemAbove(current) == nullptr) ||
                              (key == Qt::Key_Down && ui_->lvBrowsers->itemBelow(current) == nullptr);
    if (leadsNowhere) current->setSelected(true);
  }
  return QDialog::eventFilter(watched, event);
}

void frmBrowserList::Press(void (BrowserList::*button)()) {
  (list_.*button)();
  ShowEntries();
}

void frmBrowserList::ShowEntries() {
  const QSignalBlocker blocker(ui_->lvBrowsers);  // the model already knows the selection
  ui_->lvBrowsers->clear();
  for (const env::Browser& browser : list_.Entries()) {
    auto* item = new QTreeWidgetItem(ui_->lvBrowsers, {ToQt(browser.Name), ToQt(paths_.Surface(browser.Location))});
    for (const int column : {0, 1}) item->setToolTip(column, PlainTip(item->text(column)));
  }
  if (list_.Selected()) {
    ui_->lvBrowsers->setCurrentItem(ui_->lvBrowsers->topLevelItem(static_cast<int>(*list_.Selected())));
  }
}

void frmBrowserList::Select() {
  const QList<QTreeWidgetItem*> selected = ui_->lvBrowsers->selectedItems();
  if (selected.isEmpty()) return list_.Select(std::nullopt);
  list_.Select(static_cast<std::size_t>(ui_->lvBrowsers->indexOfTopLevelItem(selected.first())));
}

}  // namespace vantorium::ui
