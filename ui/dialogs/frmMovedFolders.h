#pragma once

#include "ui/model/files/FileBrowser.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmMovedFolders;
}

namespace vantorium::ui {

class MovedFolders;

/// Asks where the folders of photographs are now. Is accepted once photographs were found.
class frmMovedFolders : public QDialog {
  Q_OBJECT

 public:
  frmMovedFolders(MovedFolders& model, FolderBrowser& browser, QWidget* parent = nullptr);
  ~frmMovedFolders() override;

 private:
  void ShowRows();
  void ShowNewFolder();

  MovedFolders& model_;
  std::unique_ptr<Ui::frmMovedFolders> ui_;
};

}  // namespace vantorium::ui
