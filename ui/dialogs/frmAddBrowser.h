#pragma once

#include "env/PathMap.h"
#include "ui/model/files/FileBrowser.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmAddBrowser;
}

namespace vantorium::ui {

class BrowserEntry;

/// Asks for the name and the program of one browser.
class frmAddBrowser : public QDialog {
  Q_OBJECT

 public:
  /// `programFolder` is where btnBrowse begins; path text.
  frmAddBrowser(BrowserEntry& entry, FileBrowser& files, const env::PathMap& paths, std::string programFolder,
                QWidget* parent = nullptr);
  ~frmAddBrowser() override;

  void accept() override;
  void reject() override;

 private:
  void ChangeLocation();
  void LeaveLocation();
  void ShowLocation();
  void Browse();
  void EnableOK();

  BrowserEntry& entry_;
  FileBrowser& files_;
  const env::PathMap& paths_;
  std::string programFolder_;
  std::unique_ptr<Ui::frmAddBrowser> ui_;
};

}  // namespace vantorium::ui
