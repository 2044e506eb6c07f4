#pragma once

#include "env/PathMap.h"
#include "ui/model/files/FolderChecks.h"
#include "ui/model/files/Folders.h"

#include <QDialog>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class frmBrowseForImageFolders;
}

namespace vantorium::ui {

/// Lets the user check the folders whose photographs go into the gallery. If no folder is checked, the selected one
/// counts.
class frmBrowseForImageFolders : public QDialog {
  Q_OBJECT

 public:
  /// Paths are path text.
  frmBrowseForImageFolders(const env::PathMap& paths, const std::string& initialFolder, QWidget* parent = nullptr);
  ~frmBrowseForImageFolders() override;

  bool Cancelled = true;

  /// What was chosen with "Add Folder": each folder precedes its subfolders, which are sorted by name.
  [[nodiscard]] const std::vector<std::string>& Folders() const { return chosen_; }

  void reject() override;

 private:
  void Check(const std::filesystem::path& folder, bool checked);
  void AddFolder();
  void EnableAllButCancel(bool enable);
  void LookUp();

  const env::PathMap& paths_;
  LocalFolders folders_;
  FolderChecks checks_{folders_};
  std::vector<std::string> chosen_;
  bool lookingUp_ = false;
  bool stopped_ = false;
  std::unique_ptr<Ui::frmBrowseForImageFolders> ui_;
};

}  // namespace vantorium::ui
