#include "ui/dialogs/frmSelectColors.h"

#include "ui/qt/QtColor.h"
#include "ui/qt/QtText.h"
#include "ui_frmSelectColors.h"

#include <QMouseEvent>
#include <algorithm>

namespace vantorium::ui {
namespace {

void SetColor(QWidget& control, QPalette::ColorRole role, core::Color color) {
  QPalette colors = control.palette();
  colors.setColor(role, ToQt(color));
  control.setPalette(colors);
}

bool IsRelease(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

}  // namespace

frmSelectColors::frmSelectColors(const std::string& title, const core::PageColors& colors,
                                 const core::PageColors& others, ColorDialog& dialog, QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmSelectColors>()), model_(title, colors, others), dialog_(dialog) {
  ui_->setupUi(this);
  if (!title.empty()) setWindowTitle(ToQt(title));
  rows_ = {{&core::PageColors::background, ui_->btnBGColor, ui_->textBG},
           {&core::PageColors::text, ui_->btnFGColor, ui_->lblText},
           {&core::PageColors::link, ui_->btnLinkColor, ui_->lblLink},
           {&core::PageColors::visitedLink, ui_->btnVisitedLinkColor, ui_->lblVisitedLink},
           {&core::PageColors::activeLink, ui_->btnActiveLinkColor, ui_->lblActiveLink}};
  for (const Row& row : rows_) ConnectRow(row);
  ui_->btnUseOtherColors->setText(ToQt(model_.UseOtherColorsCaption()));
  connect(ui_->btnUseOtherColors, &QPushButton::clicked, this, [this] {
    model_.UseOtherColors();
    ShowColors();
  });
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] {
    model_.Apply();
    accept();
  });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
  ShowColors();
  ui_->OKButton->setFocus();
}

frmSelectColors::~frmSelectColors() = default;

void frmSelectColors::ConnectRow(const Row& row) {
  connect(row.button, &QPushButton::clicked, this, [this, color = row.color] { Choose(color); });
  row.element->setCursor(Qt::PointingHandCursor);
  row.element->installEventFilter(this);
}

void frmSelectColors::Choose(core::Color core::PageColors::*color) {
  model_.Choose(color, dialog_);
  ShowColors();
}

void frmSelectColors::ShowColors() {
  const core::PageColors& colors = model_.Colors();
  for (const Row& row : rows_) {
    row.button->SetColor(colors.*row.color);
    SetColor(*row.element, QPalette::Window, colors.background);
    if (row.element != ui_->textBG) SetColor(*row.element, QPalette::WindowText, colors.*row.color);
  }
}

bool frmSelectColors::eventFilter(QObject* watched, QEvent* event) {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [watched](const Row& r) { return r.element == watched; });
  if (row != rows_.end() && IsRelease(*event)) {
    // A button released elsewhere is not a click.
    if (row->element->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) Choose(row->color);
    return true;  // a click on a label must not reach the page behind it
  }
  return QDialog::eventFilter(watched, event);
}

void frmSelectColors::reject() {
  model_.Cancel();
  QDialog::reject();
}

bool SelectColors(const std::string& title, core::PageColors& colors, const core::PageColors& others,
                  ColorDialog& dialog, QWidget* owner) {
  frmSelectColors form(title, colors, others, dialog, owner);
  form.exec();
  if (form.Model().Cancelled()) return false;
  colors = form.Model().Colors();
  return true;
}

}  // namespace vantorium::ui
