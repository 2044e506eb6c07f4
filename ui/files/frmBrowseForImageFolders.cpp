#include "ui/files/frmBrowseForImageFolders.h"

#include "env/PathText.h"
#include "ui/ports/QtEventLoop.h"
#include "ui_frmBrowseForImageFolders.h"

namespace vantorium::ui {

frmBrowseForImageFolders::frmBrowseForImageFolders(const env::PathMap& paths, const std::string& initialFolder,
                                                   QWidget* parent)
    : QDialog(parent), paths_(paths), ui_(std::make_unique<Ui::frmBrowseForImageFolders>()) {
  ui_->setupUi(this);
  ui_->ftvFolders->ShowDrives(paths, folders_, [this](const auto& folder) { return checks_.IsChecked(folder); });
  ui_->ftvFolders->SetSelectedPath(initialFolder);
  connect(ui_->ftvFolders, &FolderTree::Checked, this, &frmBrowseForImageFolders::Check);
  connect(ui_->btnOK, &QPushButton::clicked, this, &frmBrowseForImageFolders::AddFolder);
  connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmBrowseForImageFolders::~frmBrowseForImageFolders() = default;

void frmBrowseForImageFolders::reject() {
  if (lookingUp_) {
    stopped_ = true;  // AddFolder then calls this again
    return;
  }
  Cancelled = true;
  QDialog::reject();
}

void frmBrowseForImageFolders::Check(const std::filesystem::path& folder, bool checked) {
  checks_.Check(folder, checked, ui_->checkRecursive->isChecked());
  ui_->ftvFolders->RefreshChecks();
}

/// Looking up the subfolders of a checked folder may take a while on a large disk; the user can cancel it.
void frmBrowseForImageFolders::AddFolder() {
  const std::filesystem::path selected = ui_->ftvFolders->SelectedFolder();
  if (!checks_.AnyChecked() && !selected.empty()) checks_.Check(selected, true, ui_->checkRecursive->isChecked());
  EnableAllButCancel(false);
  LookUp();
  EnableAllButCancel(true);
  if (stopped_) return reject();
  Cancelled = false;
  accept();
}

void frmBrowseForImageFolders::EnableAllButCancel(bool enable) {
  ui_->ftvFolders->setEnabled(enable);
  ui_->checkRecursive->setEnabled(enable);
  ui_->btnOK->setEnabled(enable);
  setCursor(enable ? Qt::ArrowCursor : Qt::BusyCursor);
}

void frmBrowseForImageFolders::LookUp() {
  QtEventLoop loop;
  chosen_.clear();
  stopped_ = false;
  lookingUp_ = true;
  const auto folders = checks_.Expand(loop, [this] { return stopped_; });
  lookingUp_ = false;
  if (!folders) return;
  for (const std::filesystem::path& folder : *folders) {
    const std::string text = paths_.ToText(folder);
    chosen_.push_back(text.ends_with(':') ? env::WithTrailingBackslash(text) : text);
  }
}

}  // namespace vantorium::ui
