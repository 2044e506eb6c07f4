#include "ui/dialogs/frmLinks.h"

#include "ui/qt/QtText.h"
#include "ui/widgets/FocusLoss.h"
#include "ui/widgets/OneLineValidator.h"
#include "ui/widgets/ShowText.h"
#include "ui_frmLinks.h"

namespace vantorium::ui {

frmLinks::frmLinks(const std::string& title, const std::string& disabledGraphicLabel, LinksModel& model,
                   FileBrowser& browser, QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmLinks>()), model_(model) {
  ui_->setupUi(this);
  if (!title.empty()) setWindowTitle(ToQt(title));
  if (!disabledGraphicLabel.empty()) ui_->lblFirstLastLink->setText(ToQt(disabledGraphicLabel));
  for (QWidget* control : std::initializer_list<QWidget*>{ui_->lblFirstLastLink, ui_->textLinkGraphicDisabled,
                                                          ui_->btnLinkGraphicDisabledBrowse}) {
    control->setVisible(model_.ShowDisabledGraphic());
  }
  for (QLineEdit* box : {ui_->textLinkLabel, ui_->textLinkGraphic, ui_->textLinkGraphicDisabled}) {
    box->setValidator(new OneLineValidator(box));
  }
  ui_->textLinkLabel->setText(ToQt(model_.Link().textLinkLabel));
  ShowGraphics();
  connect(ui_->textLinkLabel, &QLineEdit::textEdited, this,
          [this](const QString& text) { model_.EditLabel(FromQt(text)); });
  Bind(*ui_->textLinkGraphic, *ui_->btnLinkGraphicBrowse, &core::LinkSettings::textLinkGraphic, browser);
  Bind(*ui_->textLinkGraphicDisabled, *ui_->btnLinkGraphicDisabledBrowse, &core::LinkSettings::textLinkGraphicDisabled,
       browser);
  connect(ui_->OKButton, &QPushButton::clicked, this, &QDialog::accept);
  ui_->textLinkLabel->setFocus();
}

frmLinks::~frmLinks() = default;

void frmLinks::Bind(QLineEdit& control, QAbstractButton& button, LinksModel::Graphic graphic, FileBrowser& browser) {
  connect(&control, &QLineEdit::textEdited, this, [this, graphic](const QString& text) {
    model_.EditGraphic(graphic, FromQt(text));
    ShowGraphics();
  });
  control.installEventFilter(this);
  connect(&button, &QAbstractButton::clicked, this, [this, graphic, &browser, &control] {
    model_.Browse(graphic, browser);
    ShowGraphics();
    control.setFocus();  // the user can read the path; leaving the box stops the mirroring
  });
}

void frmLinks::ShowGraphics() {
  ShowText(*ui_->textLinkGraphic, model_.Shown(&core::LinkSettings::textLinkGraphic));
  if (!model_.ShowDisabledGraphic()) return;
  ShowText(*ui_->textLinkGraphicDisabled, model_.Shown(&core::LinkSettings::textLinkGraphicDisabled));
}

bool frmLinks::eventFilter(QObject* watched, QEvent* event) {
  if (LeavesControl(*event)) {
    model_.LeaveGraphic(watched == ui_->textLinkGraphic ? &core::LinkSettings::textLinkGraphic
                                                        : &core::LinkSettings::textLinkGraphicDisabled);
    ShowGraphics();
  }
  return QDialog::eventFilter(watched, event);
}

void frmLinks::done(int result) {
  model_.Close();
  QDialog::done(result);
}

core::LinkSettings EditLink(const std::string& title, const std::string& disabledGraphicLabel,
                            const core::LinkSettings& link, std::string& graphicsFolder, FileBrowser& browser,
                            const env::PathMap& paths, const std::function<void()>& edited, QWidget* owner) {
  LinksModel model(link, paths, graphicsFolder, edited, !disabledGraphicLabel.empty());
  frmLinks(title, disabledGraphicLabel, model, browser, owner).exec();
  return model.Link();
}

}  // namespace vantorium::ui
