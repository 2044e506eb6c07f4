#include "ui/dialogs/frmHTMLSingle.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/CodeBoxes.h"
#include "ui/widgets/ucPopupMenu.h"
#include "ui_frmHTMLSingle.h"

#include <QFontDatabase>

namespace vantorium::ui {

frmHTMLSingle::frmHTMLSingle(const std::string& caption, const std::string& text, env::MessageBoxPort& boxes,
                             QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmHTMLSingle>()), shown_(text), boxes_(boxes) {
  ui_->setupUi(this);
  setWindowTitle(ToQt(caption));
  ui_->textHTML->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  ShowCode(*ui_->textHTML, text);
  (new ucPopupMenu(*this))->Serve(*ui_->textHTML);
  connect(ui_->btnClose, &QPushButton::clicked, this, &frmHTMLSingle::reject);
}

frmHTMLSingle::~frmHTMLSingle() = default;

void frmHTMLSingle::reject() {
  if (MayKeepCode({ui_->textHTML}, boxes_)) accept();
}

void frmHTMLSingle::closeEvent(QCloseEvent* event) {
  accept();
  QDialog::closeEvent(event);
}

std::string frmHTMLSingle::Text() const {
  return CodeOf(*ui_->textHTML, shown_);
}

std::string EditHTMLSingle(const std::string& caption, const std::string& text, env::MessageBoxPort& boxes,
                           QWidget* owner) {
  frmHTMLSingle dialog(caption, text, boxes, owner);
  dialog.exec();
  return dialog.Text();
}

}  // namespace vantorium::ui
