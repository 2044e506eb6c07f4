#include "ui/dialogs/frmShuffle.h"

#include "ui_frmShuffle.h"

namespace vantorium::ui {

frmShuffle::frmShuffle(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmShuffle>()) {
  ui_->setupUi(this);
}

frmShuffle::~frmShuffle() = default;

void frmShuffle::Open() {
  stopRequested_ = false;
  ui_->pbShuffle->setValue(0);
  setModal(true);
  show();
}

void frmShuffle::SetPercent(double percent) {
  ui_->pbShuffle->setValue(static_cast<int>(percent));
}

void frmShuffle::Close() {
  hide();
}

}  // namespace vantorium::ui
