#pragma once

#include "ui/model/dialogs/TempFolderLocation.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmTempFolderLocation;
}

namespace vantorium {

/// Asks where the temporary folder is to lie. It is left with a path that can be used, or with Escape and its title
/// bar, which keep the location that was.
class frmTempFolderLocation : public QDialog {
  Q_OBJECT

 public:
  frmTempFolderLocation(TempFolderLocation& model, FolderBrowser& folders, QWidget* parent = nullptr);
  ~frmTempFolderLocation() override;

  void accept() override;

 private:
  void ShowModel();

  TempFolderLocation& model_;
  std::unique_ptr<Ui::frmTempFolderLocation> ui_;
};

/// Lets the user choose; true when `preferences` took over what was chosen. An empty location becomes `appPath` (path
/// text, no backslash at its end) in any case.
bool EditTempFolderLocation(Preferences& preferences, const std::string& appPath, MessageBoxPort& boxes,
                            const mFileFunctions& files, FolderBrowser& folders, QWidget* owner);

}  // namespace vantorium
