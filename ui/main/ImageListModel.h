#pragma once

#include "core/ImageList.h"

#include <QAbstractTableModel>

namespace vantorium {

/// The image list as a view sees it: row r is position r + 1. It makes no item a row; each text comes from the list at
/// the moment it is drawn.
///
/// The list changes without telling the model, and in the middle of an operation. So the model answers with the count
/// of its last Refresh, and with no text for rows that are gone meanwhile.
class ImageListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { ImageName, ImageSourceFile, ColumnCount };

  explicit ImageListModel(const ImageList& images, QObject* parent = nullptr);

  /// Shows the list as it is now.
  void Refresh();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

 private:
  void SetRowCount(int rows);

  const ImageList& images_;
  int rows_ = 0;
};

}  // namespace vantorium
