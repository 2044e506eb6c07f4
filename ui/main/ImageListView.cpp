#include "ui/main/ImageListView.h"

#include "ui/main/ImageListModel.h"
#include "ui/model/main/DropTarget.h"
#include "ui/qt/QtText.h"

#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <vector>

namespace vantorium::ui {
namespace {

std::size_t PositionOf(int row) {
  return static_cast<std::size_t>(row) + 1;
}

int RowOf(std::size_t position) {
  return static_cast<int>(position) - 1;
}

}  // namespace

ImageListView::ImageListView(QWidget* parent) : QTreeView(parent) {
  setRootIsDecorated(false);
  setUniformRowHeights(true);  // lays out ten thousand rows without measuring each
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setSelectionMode(ExtendedSelection);
  setDragDropMode(InternalMove);  // refuses drops from elsewhere
  setDropIndicatorShown(false);   // it would point between rows, where nothing can be dropped
}

void ImageListView::Attach(core::ImageList& images, const env::PathMap& paths) {
  images_ = &images;
  model_ = new ImageListModel(images, paths, this);
  setModel(model_);
  header()->resizeSection(ImageListModel::ImageName, fontMetrics().averageCharWidth() * 24);
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected, const QItemSelection& deselected) {
            TakeSelection(deselected, false);
            TakeSelection(selected, true);
          });
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &ImageListView::TakeCurrent);
  connect(this, &QTreeView::doubleClicked, this, &ImageListView::FullScreenAsked);
}

void ImageListView::Refresh() {
  const QScopedValueRollback guard(showing_, true);
  model_->Refresh();
  ShowSelection();
  ShowCurrent();
}

void ImageListView::ScrollToPosition(std::size_t position) {
  if (position < 1 || RowOf(position) >= model_->rowCount()) return;
  scrollTo(model_->index(RowOf(position), 0));
}

void ImageListView::ShowSelection() {
  QItemSelection selection;
  const std::size_t count = images_->Count();
  for (std::size_t first = 1; first <= count; ++first) {
    if (!images_->IsSelected(first)) continue;
    std::size_t last = first;
    while (last < count && images_->IsSelected(last + 1)) ++last;
    selection.append({model_->index(RowOf(first), 0), model_->index(RowOf(last), ImageListModel::ColumnCount - 1)});
    first = last;
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void ImageListView::ShowCurrent() {
  const std::size_t current = images_->Current();
  const QModelIndex index = current == 0 ? QModelIndex() : model_->index(RowOf(current), 0);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void ImageListView::TakeSelection(const QItemSelection& selected, bool isSelected) {
  if (showing_) return;
  for (const QItemSelectionRange& range : selected) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      if (PositionOf(row) <= images_->Count()) images_->Select(PositionOf(row), isSelected);
    }
  }
}

void ImageListView::TakeCurrent(const QModelIndex& current) {
  if (showing_) return;
  const std::size_t position = current.isValid() ? PositionOf(current.row()) : 0;
  if (position > images_->Count()) return;
  images_->SetCurrent(position);
  emit CurrentRowChanged();
}

void ImageListView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Delete:
      emit DeletePressed();
      break;
    case Qt::Key_Insert:
      emit InsertPressed();
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit FullScreenAsked();
      break;
    default:
      QTreeView::keyPressEvent(event);
  }
}

// Drags one row, identified by its name, however many are selected. Handling the drop may ask the user something, so it
// waits until the drag is over.
void ImageListView::startDrag(Qt::DropActions actions) {
  const QModelIndex index = currentIndex().siblingAtColumn(0);
  if (!index.isValid()) return;
  const QString name = index.data().toString();
  auto* drag = new QDrag(this);
  drag->setMimeData(model_->mimeData({index}));
  drag->setPixmap(viewport()->grab(visualRect(index)));
  dropTarget_.reset();
  drag->exec(actions, Qt::MoveAction);
  if (dropTarget_) emit Dropped(FromQt(name), *dropTarget_);
  dropTarget_.reset();
}

void ImageListView::dragMoveEvent(QDragMoveEvent* event) {
  QTreeView::dragMoveEvent(event);  // scrolls near the edges
  event->setAccepted(event->source() == this);
}

void ImageListView::dropEvent(QDropEvent* event) {
  stopAutoScroll();
  setState(NoState);
  if (event->source() != this) return event->ignore();
  event->setDropAction(Qt::MoveAction);
  event->accept();
  dropTarget_ = TargetAt(event->position().toPoint().y());
}

std::size_t ImageListView::TargetAt(int y) const {
  const QModelIndex top = indexAt(QPoint(0, 0));
  if (!top.isValid()) return 0;
  const QRect first = visualRect(top);
  std::vector<RowExtent> extents;
  for (int row = top.row(); row < model_->rowCount(); ++row) {
    extents.push_back({.top = first.top() + (row - top.row()) * first.height(), .height = first.height()});
  }
  return DropTarget(PositionOf(top.row()), extents, y);
}

}  // namespace vantorium::ui
