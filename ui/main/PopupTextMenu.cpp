#include "ui/main/PopupTextMenu.h"

#include "ui/model/main/TagMenu.h"
#include "ui/qt/QtText.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace vantorium::ui {
namespace {

void InsertWhereTheKeyboardIs(const QString& tag) {
  QWidget* field = QApplication::focusWidget();
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->insert(tag);
  if (auto* box = qobject_cast<QPlainTextEdit*>(field)) box->insertPlainText(tag);
}

}  // namespace

void MakePopupTextMenu(QWidget& window) {
  auto* menu = new QMenu(&window);
  menu->setObjectName("menuPopupText");
  QMenu* tags = menu->addMenu(QObject::tr("Insert &Vantorium Tag"));
  tags->setObjectName("menuPopupTextInsertVantoriumTag");
  for (const TagMenuEntry& entry : PopupTextTags()) {
    tags->addAction(ToQt(entry.caption), &window, [tag = ToQt(entry.tag)] { InsertWhereTheKeyboardIs(tag); });
  }
}

}  // namespace vantorium::ui
