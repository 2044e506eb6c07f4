#include "ui/main/frmInfo.h"

#include "ui/qt/QtText.h"
#include "ui_frmInfo.h"

#include <QApplication>
#include <QHideEvent>

namespace vantorium::ui {

frmInfo::frmInfo(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      ui_(std::make_unique<Ui::frmInfo>()) {
  ui_->setupUi(this);
  setAttribute(Qt::WA_ShowWithoutActivating);  // there is nothing to type here; some desktops ignore this
}

frmInfo::~frmInfo() = default;

void frmInfo::SetText(const std::string& text) {
  ui_->Label1->setText(ToQt(text));
}

void frmInfo::setVisible(bool visible) {
  if (visible && !isVisible()) activeBefore_ = QApplication::activeWindow();
  const bool takesKeyboardAway = !visible && isActiveWindow();
  QDialog::setVisible(visible);
  if (takesKeyboardAway && activeBefore_ != nullptr) activeBefore_->activateWindow();
}

void frmInfo::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!pointer_) pointer_.emplace();
}

void frmInfo::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) pointer_.reset();  // a minimized window is still busy
  QDialog::hideEvent(event);
}

}  // namespace vantorium::ui
