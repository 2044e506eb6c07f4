#include "ui/main/ViewMenus.h"

#include "ui/model/main/BrowserMenus.h"
#include "ui/qt/QtText.h"

#include <QMenu>
#include <QToolButton>

namespace vantorium::ui {
namespace {

/// The caller may be an entry of this menu, so the entries live until it has been handled.
void RemoveEntries(QMenu& menu) {
  for (QAction* entry : menu.actions()) {
    menu.removeAction(entry);
    if (entry->parent() == &menu) entry->deleteLater();
  }
}

}  // namespace

ViewMenus::ViewMenus(QMenu& menu, QAction& defaultEntry, QToolButton& button)
    : menu_(menu), defaultEntry_(defaultEntry), dropDown_(*new QMenu(&button)) {
  dropDown_.setObjectName("tbMainViewDropDown");
  button.setMenu(&dropDown_);
  button.setPopupMode(QToolButton::MenuButtonPopup);
}

void ViewMenus::Show(const BrowserMenus& menus) {
  for (QMenu* menu : {&menu_, &dropDown_}) {
    RemoveEntries(*menu);
    AddEntries(*menu, menus);
  }
}

void ViewMenus::AddEntries(QMenu& menu, const BrowserMenus& menus) {
  std::int16_t position = 0;
  for (const BrowserMenuEntry& entry : menus.DropDown) {
    ++position;
    if (entry.IsSeparator()) {
      menu.addSeparator();
    } else if (entry.Key == "default" && &menu == &menu_) {
      menu.addAction(&defaultEntry_);
    } else {
      AddEntry(menu, entry, position);
    }
  }
}

void ViewMenus::AddEntry(QMenu& menu, const BrowserMenuEntry& entry, std::int16_t position) {
  const BrowserClick click = DropDownClick(kViewButton, entry.Key, position);
  QAction* action = menu.addAction(WithoutMnemonics(entry.Text), this, [this, click] {
    if (click.kind == BrowserClick::Kind::View) emit ViewAsked(click.BrowserIndex);
    if (click.kind == BrowserClick::Kind::List) emit ListAsked();
  });
  const bool isArray = &menu == &menu_ && click.kind == BrowserClick::Kind::View;
  action->setObjectName(isArray ? "menuActionsViewBrowser" + QString::number(click.BrowserIndex) : ToQt(entry.Key));
}

}  // namespace vantorium::ui
