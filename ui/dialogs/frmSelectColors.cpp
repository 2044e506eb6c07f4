#include "ui/dialogs/frmSelectColors.h"

#include "ui/qt/QtColour.h"
#include "ui/qt/QtText.h"
#include "ui_frmSelectColors.h"

#include <QMouseEvent>
#include <algorithm>

namespace vantorium {
namespace {

void SetColour(QWidget& control, QPalette::ColorRole role, Colour colour) {
  QPalette colours = control.palette();
  colours.setColor(role, ToQt(colour));
  control.setPalette(colours);
}

bool IsRelease(const QEvent& event) {
  return event.type() == QEvent::MouseButtonRelease &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

}  // namespace

frmSelectColors::frmSelectColors(const std::string& title, const PageColours& colours, const PageColours& others,
                                 ColourDialog& dialog, QWidget* owner)
    : QDialog(owner), ui_(std::make_unique<Ui::frmSelectColors>()), model_(title, colours, others), dialog_(dialog) {
  ui_->setupUi(this);
  if (!title.empty()) setWindowTitle(ToQt(title));
  rows_ = {{&PageColours::background, ui_->btnBGColor, ui_->textBG},
           {&PageColours::text, ui_->btnFGColor, ui_->lblText},
           {&PageColours::link, ui_->btnLinkColor, ui_->lblLink},
           {&PageColours::visitedLink, ui_->btnVisitedLinkColor, ui_->lblVisitedLink},
           {&PageColours::activeLink, ui_->btnActiveLinkColor, ui_->lblActiveLink}};
  for (const Row& row : rows_) ConnectRow(row);
  ui_->btnUseOtherColors->setText(ToQt(model_.UseOtherColorsCaption()));
  connect(ui_->btnUseOtherColors, &QPushButton::clicked, this, [this] {
    model_.UseOtherColors();
    ShowColours();
  });
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] {
    model_.Apply();
    accept();
  });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
  ShowColours();
  ui_->OKButton->setFocus();
}

frmSelectColors::~frmSelectColors() = default;

void frmSelectColors::ConnectRow(const Row& row) {
  connect(row.button, &QPushButton::clicked, this, [this, colour = row.colour] { Choose(colour); });
  row.element->setCursor(Qt::PointingHandCursor);
  row.element->installEventFilter(this);
}

void frmSelectColors::Choose(Colour PageColours::*colour) {
  model_.Choose(colour, dialog_);
  ShowColours();
}

void frmSelectColors::ShowColours() {
  const PageColours& colours = model_.Colours();
  for (const Row& row : rows_) {
    row.button->SetColour(colours.*row.colour);
    SetColour(*row.element, QPalette::Window, colours.background);
    if (row.element != ui_->textBG) SetColour(*row.element, QPalette::WindowText, colours.*row.colour);
  }
}

bool frmSelectColors::eventFilter(QObject* watched, QEvent* event) {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [watched](const Row& r) { return r.element == watched; });
  if (row != rows_.end() && IsRelease(*event)) {
    // Let go elsewhere, it is no click.
    if (row->element->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) Choose(row->colour);
    return true;  // a label's click is not one on the page behind it
  }
  return QDialog::eventFilter(watched, event);
}

void frmSelectColors::reject() {
  model_.Cancel();
  QDialog::reject();
}

bool SelectColors(const std::string& title, PageColours& colours, const PageColours& others, ColourDialog& dialog,
                  QWidget* owner) {
  frmSelectColors form(title, colours, others, dialog, owner);
  form.exec();
  if (form.Model().Cancelled()) return false;
  colours = form.Model().Colours();
  return true;
}

}  // namespace vantorium
