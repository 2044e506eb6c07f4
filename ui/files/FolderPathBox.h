#pragma once

#include "env/PathMap.h"

#include <QComboBox>

namespace vantorium::ui {

/// Shows the path text of a folder, and offers its parent folders and the other drives.
class FolderPathBox : public QComboBox {
  Q_OBJECT

 public:
  explicit FolderPathBox(const env::PathMap& paths, QWidget* parent = nullptr);

  /// Shows the folder `native`.
  void Show(const QString& native);

 signals:
  /// The user chose another folder, given as a native path.
  void Chosen(const QString& native);

 private:
  void Add(const std::filesystem::path& native);

  const env::PathMap& paths_;
};

}  // namespace vantorium::ui
