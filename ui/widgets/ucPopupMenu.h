#pragma once

#include "ui/model/main/EditMenu.h"
#include "ui/model/main/TagMenu.h"

#include <QCursor>
#include <QMenu>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>

namespace vantorium {

/// The menu of a form's text boxes, in place of their own: the edit commands, and every template tag to put into the
/// text. All it does to a text can be undone step by step. Menus and entries bear the names "mnuEditTOP", "mnuEdit0",
/// "mnuEditTags", "mnuEditTagsGallery", "mnuEditTagsGallery0" and so on.
class ucPopupMenu : public QObject {
  Q_OBJECT

 public:
  /// The menu belongs to `form`.
  explicit ucPopupMenu(QWidget& form);

  /// From now on this menu is the context menu of the box, for the mouse and the keyboard.
  void Serve(QPlainTextEdit& box);

  /// Gives the box the focus and opens the menu for it at a place of the screen, and does not wait for its end.
  void ShowPopupMenu(QPlainTextEdit& box, QPoint at = QCursor::pos());

 private:
  void AddEditCommands();
  void AddTags(QMenu& parent, const TagMenu& tags);
  void Run(EditCommand command);
  void EnableEntries();

  QMenu* menu_;
  QPointer<QPlainTextEdit> box_;  ///< the one for which the menu was last shown
};

}  // namespace vantorium
