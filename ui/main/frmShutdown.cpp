#include "ui/main/frmShutdown.h"

#include "ui/qt/QtText.h"
#include "ui_frmShutdown.h"

namespace vantorium::ui {

frmShutdown::frmShutdown(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      ui_(std::make_unique<Ui::frmShutdown>()) {
  ui_->setupUi(this);
}

frmShutdown::~frmShutdown() = default;

void frmShutdown::ShowStep(const std::string& text) {
  ui_->lblMessage->setText(ToQt(text));
}

}  // namespace vantorium::ui
