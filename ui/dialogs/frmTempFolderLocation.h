#pragma once

#include "ui/model/dialogs/TempFolderLocation.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmTempFolderLocation;
}

namespace vantorium::ui {

/// Asks for the location of the temporary folder. OK closes it only with a usable path; Escape and the title bar keep
/// the old location.
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

/// Lets the user choose; returns true if the choice was stored in `preferences`. An empty location becomes `appPath`
/// (path text without a trailing backslash) in any case.
bool EditTempFolderLocation(env::Preferences& preferences, const std::string& appPath, env::MessageBoxPort& boxes,
                            const env::mFileFunctions& files, FolderBrowser& folders, QWidget* owner);

}  // namespace vantorium::ui
