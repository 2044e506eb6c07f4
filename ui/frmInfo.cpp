#include "ui/frmInfo.h"

#include "ui/ports/QtText.h"
#include "ui_frmInfo.h"

#include <QHideEvent>

namespace vantorium {

frmInfo::frmInfo(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      ui_(std::make_unique<Ui::frmInfo>()) {
  ui_->setupUi(this);
}

frmInfo::~frmInfo() = default;

void frmInfo::SetText(const std::string& text) {
  ui_->Label1->setText(ToQt(text));
}

void frmInfo::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!pointer_) pointer_.emplace();
}

void frmInfo::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) pointer_.reset();  // a minimised window is busy all the same
  QDialog::hideEvent(event);
}

}  // namespace vantorium
