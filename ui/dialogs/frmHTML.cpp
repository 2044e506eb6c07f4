#include "ui/dialogs/frmHTML.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/CodeBoxes.h"
#include "ui/widgets/ucPopupMenu.h"
#include "ui_frmHTML.h"

#include <QFontDatabase>

namespace vantorium::ui {

frmHTML::frmHTML(const std::string& caption, HeaderAndFooter texts, env::MessageBoxPort& boxes, QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmHTML>()), shown_(std::move(texts)), boxes_(boxes) {
  ui_->setupUi(this);
  setWindowTitle(ToQt(caption));
  ShowCode(*ui_->textHeader, shown_.header);
  ShowCode(*ui_->textFooter, shown_.footer);
  auto* menu = new ucPopupMenu(*this);
  for (QPlainTextEdit* box : {ui_->textHeader, ui_->textFooter}) {
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    menu->Serve(*box);
  }
  connect(ui_->btnClose, &QPushButton::clicked, this, &frmHTML::reject);
}

frmHTML::~frmHTML() = default;

void frmHTML::reject() {
  if (MayKeepCode({ui_->textHeader, ui_->textFooter}, boxes_)) accept();
}

void frmHTML::closeEvent(QCloseEvent* event) {
  accept();
  QDialog::closeEvent(event);
}

HeaderAndFooter frmHTML::Texts() const {
  return {CodeOf(*ui_->textHeader, shown_.header), CodeOf(*ui_->textFooter, shown_.footer)};
}

HeaderAndFooter EditHTML(const std::string& caption, const HeaderAndFooter& texts, env::MessageBoxPort& boxes,
                         QWidget* owner) {
  frmHTML dialog(caption, texts, boxes, owner);
  dialog.exec();
  return dialog.Texts();
}

}  // namespace vantorium::ui
