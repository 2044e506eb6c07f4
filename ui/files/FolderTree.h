#pragma once

#include "env/PathMap.h"
#include "ui/model/files/Folders.h"

#include <QTreeWidget>
#include <filesystem>
#include <functional>
#include <string>

namespace vantorium::ui {

/// A tree of the folders of all drives. The subfolders of a folder are looked up when it is expanded; hidden ones are
/// not shown. With check boxes, the tree asks whether a folder is checked each time it is about to show it.
class FolderTree : public QTreeWidget {
  Q_OBJECT

 public:
  using IsChecked = std::function<bool(const std::filesystem::path& native)>;

  explicit FolderTree(QWidget* parent = nullptr);

  /// Fills the tree. `paths` and `folders` must outlive it. If `isChecked` is empty, there are no check boxes.
  void ShowDrives(const env::PathMap& paths, const Folders& folders, IsChecked isChecked = {});

  /// Selects a folder, expands it and scrolls to it: that of `text` or its nearest parent that exists, or the first
  /// drive if there is none.
  void SetSelectedPath(const std::string& text);
  /// Path text; empty when nothing is selected.
  [[nodiscard]] std::string SelectedPath() const;
  /// Native; empty when nothing is selected.
  [[nodiscard]] std::filesystem::path SelectedFolder() const;

  /// Updates which folders are shown as checked.
  void RefreshChecks();

 signals:
  void Checked(const std::filesystem::path& native, bool checked);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QTreeWidgetItem* MakeItem(const std::filesystem::path& native, const QString& text) const;
  void Load(QTreeWidgetItem& item);
  [[nodiscard]] QTreeWidgetItem* DriveOf(const std::string& text) const;
  [[nodiscard]] QTreeWidgetItem* ChildOf(QTreeWidgetItem& item, const std::filesystem::path& native);
  void ShowCheck(QTreeWidgetItem& item) const;

  const env::PathMap* paths_ = nullptr;
  const Folders* folders_ = nullptr;
  IsChecked isChecked_;
};

}  // namespace vantorium::ui
