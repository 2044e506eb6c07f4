#pragma once

#include "ui/model/main/EditMenu.h"
#include "ui/model/main/TagMenu.h"

#include <QCursor>
#include <QMenu>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>

namespace vantorium::ui {

/// The context menu of a form's text boxes, in place of Qt's: the edit commands, and every template tag to insert. Each
/// of its changes to a text can be undone step by step. Menus and entries are named "mnuEditTOP", "mnuEdit0",
/// "mnuEditTags", "mnuEditTagsGallery", "mnuEditTagsGallery0" and so on.
class ucPopupMenu : public QObject {
  Q_OBJECT

 public:
  /// The menu belongs to `form`.
  explicit ucPopupMenu(QWidget& form);

  /// Makes this menu the context menu of the box, for the mouse and the keyboard.
  void Serve(QPlainTextEdit& box);

  /// Gives the box the focus and opens the menu for it at `at`, in screen coordinates. Does not wait until the menu
  /// closes.
  void ShowPopupMenu(QPlainTextEdit& box, QPoint at = QCursor::pos());

 private:
  void AddEditCommands();
  void AddTags(QMenu& parent, const TagMenu& tags);
  void Run(EditCommand command);
  void EnableEntries();

  QMenu* menu_;
  QPointer<QPlainTextEdit> box_;  ///< the box that the menu was last shown for
};

}  // namespace vantorium::ui
