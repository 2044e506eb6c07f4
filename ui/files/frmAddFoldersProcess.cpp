#include "ui/files/frmAddFoldersProcess.h"

#include "ui/model/main/ImageListTexts.h"
#include "ui/qt/QtText.h"
#include "ui_frmAddFoldersProcess.h"

namespace vantorium::ui {

frmAddFoldersProcess::frmAddFoldersProcess(QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::frmAddFoldersProcess>()) {
  ui_->setupUi(this);
}

frmAddFoldersProcess::~frmAddFoldersProcess() = default;

void frmAddFoldersProcess::Open() {
  Cancelled = false;
  setModal(true);
  show();
}

void frmAddFoldersProcess::Show(const std::string& folder, std::size_t added) {
  ui_->lblFolder->setText(tr("Processing:") + ' ' + ToQt(folder));
  ui_->lblCount->setText(ToQt(ImageCountText(static_cast<std::int32_t>(added))));
}

void frmAddFoldersProcess::Close() {
  hide();
}

}  // namespace vantorium::ui
