#include "ui/main/ImageListModel.h"

#include "ui/qt/QtText.h"

namespace vantorium::ui {

ImageListModel::ImageListModel(const core::ImageList& images, const env::PathMap& paths, QObject* parent)
    : QAbstractTableModel(parent), images_(images), paths_(paths), rows_(static_cast<int>(images.Count())) {}

// Adds or removes rows at the end and reports all others as changed, so that a view keeps its place; a reset would lose
// it.
void ImageListModel::Refresh() {
  SetRowCount(static_cast<int>(images_.Count()));
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, ColumnCount - 1));
}

void ImageListModel::SetRowCount(int rows) {
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

int ImageListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ImageListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant ImageListModel::data(const QModelIndex& index, int role) const {
  const auto position = static_cast<std::size_t>(index.row()) + 1;
  const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
  if (!isText || !index.isValid() || position > images_.Count()) return {};
  const core::ImageEntry& entry = images_.Entry(position);
  if (role == Qt::ToolTipRole) return index.column() == ImageSourceFile ? SourceOf(entry) : QVariant();
  return index.column() == ImageName ? ToQt(entry.ImageName) : SourceOf(entry);
}

QString ImageListModel::SourceOf(const core::ImageEntry& entry) const {
  return ToQt(paths_.Surface(entry.SourcePath));
}

QVariant ImageListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == ImageName ? tr("Image Name") : tr("Image Source File");
}

Qt::ItemFlags ImageListModel::flags(const QModelIndex& index) const {
  const auto whole = QAbstractTableModel::flags(index) | Qt::ItemIsDropEnabled;
  return index.isValid() ? whole | Qt::ItemIsDragEnabled : whole;
}

}  // namespace vantorium::ui
