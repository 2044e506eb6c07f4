#pragma once

#include "core/ImageList.h"

#include <QTreeView>
#include <optional>
#include <string>

namespace vantorium {

class ImageListModel;

/// Shows an image list. Which rows are selected and which one is current is kept in the list: what the user does here
/// goes there at once, and Refresh brings back what others did there.
class ImageListView : public QTreeView {
  Q_OBJECT

 public:
  explicit ImageListView(QWidget* parent = nullptr);

  /// To be called once; `images` outlives this.
  void Attach(ImageList& images);
  /// Shows the list as it is now: rows, selection, current row.
  void Refresh();
  /// `position` counts from 1; one that the view does not know yet is ignored.
  void ScrollToPosition(std::size_t position);

 signals:
  /// The user made another row the current one, which the list knows already.
  void CurrentRowChanged();
  /// A double click on a row, or the Enter key.
  void FullScreenAsked();
  void DeletePressed();
  void InsertPressed();
  /// The row named `name` was dragged on to the row at `target`, and the drag is over.
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

  ImageList* images_ = nullptr;
  ImageListModel* model_ = nullptr;
  bool showing_ = false;  // what the selection model tells meanwhile comes from the list itself
  std::optional<std::size_t> dropTarget_;
};

}  // namespace vantorium
