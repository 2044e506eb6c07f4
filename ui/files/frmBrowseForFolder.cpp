#include "ui/files/frmBrowseForFolder.h"

#include "ui/qt/QtText.h"
#include "ui_frmBrowseForFolder.h"

#include <QApplication>

namespace vantorium::ui {

frmBrowseForFolder::frmBrowseForFolder(const env::PathMap& paths, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmBrowseForFolder>()) {
  ui_->setupUi(this);
  ui_->ftvFolders->ShowDrives(paths, folders_);
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] {
    Cancelled = false;
    accept();
  });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

frmBrowseForFolder::~frmBrowseForFolder() = default;

void frmBrowseForFolder::SetSelectedPath(const std::string& path) {
  ui_->ftvFolders->SetSelectedPath(path);
}

std::string frmBrowseForFolder::SelectedPath() const {
  return ui_->ftvFolders->SelectedPath();
}

void frmBrowseForFolder::reject() {
  Cancelled = true;
  QDialog::reject();
}

void frmBrowseForFolder::showEvent(QShowEvent* event) {
  Cancelled = false;
  QDialog::showEvent(event);
}

std::optional<std::string> QtFolderBrowser::BrowseForFolder(const std::string& title,
                                                            const std::string& initialFolder) {
  frmBrowseForFolder form(paths_, QApplication::activeWindow());
  form.setWindowTitle(ToQt(title));
  form.SetSelectedPath(initialFolder);
  form.exec();
  const std::string folder = form.SelectedPath();
  if (form.Cancelled || folder.empty()) return std::nullopt;
  return folder;
}

}  // namespace vantorium::ui
