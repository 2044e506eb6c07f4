#pragma once

#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"
#include "ui/model/files/Folders.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmBrowseForFolder;
}

namespace vantorium::ui {

/// Lets the user choose a folder in a tree.
class frmBrowseForFolder : public QDialog {
  Q_OBJECT

 public:
  explicit frmBrowseForFolder(const env::PathMap& paths, QWidget* parent = nullptr);
  ~frmBrowseForFolder() override;

  /// Path text.
  void SetSelectedPath(const std::string& path);
  [[nodiscard]] std::string SelectedPath() const;

  bool Cancelled = false;

  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  LocalFolders folders_;
  std::unique_ptr<Ui::frmBrowseForFolder> ui_;
};

/// The folder dialog of the whole program, shown over the active window.
class QtFolderBrowser : public FolderBrowser {
 public:
  explicit QtFolderBrowser(const env::PathMap& paths) : paths_(paths) {}

  [[nodiscard]] std::optional<std::string> BrowseForFolder(const std::string& title,
                                                           const std::string& initialFolder) override;

 private:
  const env::PathMap& paths_;
};

}  // namespace vantorium::ui
