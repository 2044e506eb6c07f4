#pragma once

#include "core/ImageList.h"
#include "env/PathMap.h"

#include <QTreeView>
#include <optional>
#include <string>

namespace vantorium::ui {

class ImageListModel;

/// Shows an image list. The list stores which rows are selected and which one is current: the user's changes go to the
/// list at once, and Refresh shows the changes that others made to the list.
class ImageListView : public QTreeView {
  Q_OBJECT

 public:
  explicit ImageListView(QWidget* parent = nullptr);

  /// Call once. `images` must outlive this.
  void Attach(core::ImageList& images, const env::PathMap& paths);
  /// Shows the list as it is now: rows, selection, current row.
  void Refresh();
  /// `position` counts from 1; a position that the view does not know yet is ignored.
  void ScrollToPosition(std::size_t position);

 signals:
  /// The user changed the current row; the list already has the change.
  void CurrentRowChanged();
  /// A double click on a row, or the Enter key.
  void FullScreenAsked();
  void DeletePressed();
  void InsertPressed();
  /// The row named `name` was dropped on the row at `target`. Emitted when the drag is over.
  void Dropped(const std::string& name, std::size_t target);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void startDrag(Qt::DropActions actions) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ShowSelection();
  void ShowCurrent();
  void TakeSelection(const QItemSelection& selected, bool isSelected);
  void TakeCurrent(const QModelIndex& current);
  [[nodiscard]] std::size_t TargetAt(int y) const;

  core::ImageList* images_ = nullptr;
  ImageListModel* model_ = nullptr;
  bool showing_ = false;  // while true, the selection model's signals come from the list itself
  std::optional<std::size_t> dropTarget_;
};

}  // namespace vantorium::ui
