#pragma once

#include "env/PathMap.h"

#include <QComboBox>

namespace vantorium {

/// The path text of a folder, with the folders above it and the other drives to choose from.
class FolderPathBox : public QComboBox {
  Q_OBJECT

 public:
  explicit FolderPathBox(const PathMap& paths, QWidget* parent = nullptr);

  /// Shows a native folder.
  void Show(const QString& native);

 signals:
  /// The user chose another folder, native.
  void Chosen(const QString& native);

 private:
  void Add(const std::filesystem::path& native);

  const PathMap& paths_;
};

}  // namespace vantorium
