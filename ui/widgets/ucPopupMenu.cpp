#include "ui/widgets/ucPopupMenu.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/TextBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace vantorium::ui {
namespace {

bool ClipboardHasText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && data->hasText();
}

}  // namespace

ucPopupMenu::ucPopupMenu(QWidget& form) : QObject(&form), menu_(new QMenu(&form)) {
  setObjectName("ucPopupMenu");
  menu_->setObjectName("mnuEditTOP");
  AddEditCommands();
  QMenu* tags = menu_->addMenu(tr("Insert Vantorium Tag"));
  tags->setObjectName("mnuEditTags");
  for (const TagMenu& group : TagMenus()) AddTags(*tags, group);
}

void ucPopupMenu::AddEditCommands() {
  int index = 0;
  for (const EditMenuEntry& entry : EditMenuEntries()) {
    const EditCommand command = entry.command;
    QAction* action = menu_->addAction(ToQt(entry.caption));
    action->setObjectName("mnuEdit" + QString::number(index++));
    action->setSeparator(command == EditCommand::Separator);
    action->setData(static_cast<int>(command));
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
  }
}

void ucPopupMenu::AddTags(QMenu& parent, const TagMenu& tags) {
  QMenu* menu = parent.addMenu(ToQt(tags.caption));
  menu->setObjectName(ToQt(tags.name));
  int index = 0;
  for (const TagMenuEntry& entry : tags.entries) {
    QAction* action = menu->addAction(ToQt(entry.caption));
    action->setObjectName(menu->objectName() + QString::number(index++));
    action->setSeparator(entry.tag.empty());
    connect(action, &QAction::triggered, this, [this, tag = ToQt(entry.tag)] {
      if (box_ != nullptr) ReplaceSelection(*box_, tag);
    });
  }
}

void ucPopupMenu::Serve(QPlainTextEdit& box) {
  box.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&box, &QWidget::customContextMenuRequested, this,
          [this, &box](QPoint at) { ShowPopupMenu(box, box.viewport()->mapToGlobal(at)); });
}

void ucPopupMenu::ShowPopupMenu(QPlainTextEdit& box, QPoint at) {
  box_ = &box;
  box.setFocus();
  EnableEntries();
  menu_->popup(at);
}

void ucPopupMenu::EnableEntries() {
  const TextBoxState state = {.canUndo = box_->document()->isUndoAvailable(),
                              .isLocked = box_->isReadOnly(),
                              .hasSelection = box_->textCursor().hasSelection(),
                              .clipboardHasText = ClipboardHasText()};
  for (QAction* action : menu_->actions()) {
    if (action->menu() != nullptr) continue;
    action->setEnabled(IsEnabled(static_cast<EditCommand>(action->data().toInt()), state));
  }
}

void ucPopupMenu::Run(EditCommand command) {
  if (box_ == nullptr) return;
  switch (command) {
    case EditCommand::Undo:
      return box_->undo();
    case EditCommand::Cut:
      return box_->cut();
    case EditCommand::Copy:
      return box_->copy();
    case EditCommand::Paste:
      return box_->paste();
    case EditCommand::Clear:
      return ReplaceSelection(*box_, {});
    case EditCommand::SelectAll:
      return box_->selectAll();
    case EditCommand::Separator:
      break;
  }
}

}  // namespace vantorium::ui
