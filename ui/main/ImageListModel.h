#pragma once

#include "core/ImageList.h"
#include "env/PathMap.h"

#include <QAbstractTableModel>

namespace vantorium::ui {

/// Presents the image list to a view: row r is position r + 1. Creates no item per row; each text is read from the list
/// when it is drawn.
///
/// The list changes without telling the model, even in the middle of an operation. The model therefore reports the row
/// count of its last Refresh, and no text for rows that no longer exist.
class ImageListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { ImageName, ImageSourceFile, ColumnCount };

  ImageListModel(const core::ImageList& images, const env::PathMap& paths, QObject* parent = nullptr);

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

  [[nodiscard]] QString SourceOf(const core::ImageEntry& entry) const;

  const core::ImageList& images_;
  const env::PathMap& paths_;
  int rows_ = 0;
};

}  // namespace vantorium::ui
