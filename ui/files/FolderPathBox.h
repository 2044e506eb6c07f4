#pragma once

#include "env/PathMap.h"

#include <QComboBox>

namespace vantorium {

/// Shows the path text of a folder, and offers its parent folders and the other drives.
class FolderPathBox : public QComboBox {
  Q_OBJECT

 public:
  explicit FolderPathBox(const PathMap& paths, QWidget* parent = nullptr);

  /// Shows the folder `native`.
  void Show(const QString& native);

 signals:
  /// The user chose another folder, given as a native path.
  void Chosen(const QString& native);

 private:
  void Add(const std::filesystem::path& native);

  const PathMap& paths_;
};

}  // namespace vantorium
