#include "ui/dialogs/frmImageDescriptions.h"

#include "ui/dialogs/frmHTML.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/CodeBoxes.h"
#include "ui/widgets/FieldBinder.h"
#include "ui/widgets/ucPopupMenu.h"
#include "ui_frmImageDescriptions.h"

#include <QSignalBlocker>
#include <QTabBar>
#include <utility>

namespace vantorium::ui {
namespace {

void FillList(QComboBox& list, core::ValueList texts) {
  list.clear();
  for (const std::string_view text : texts) list.addItem(ToQt(text));
}

std::unique_ptr<Ui::frmImageDescriptions> SetUp(frmImageDescriptions& form) {
  auto ui = std::make_unique<Ui::frmImageDescriptions>();
  ui->setupUi(&form);
  return ui;
}

}  // namespace

frmImageDescriptions::frmImageDescriptions(core::Project& project, FieldBinder& binder, env::MessageBoxPort& boxes,
                                           QWidget* parent)
    : QDialog(parent),  // not a Qt::Tool window, where the main window's mnemonics work too
      project_(project),
      binder_(binder),
      boxes_(boxes),
      model_(project, boxes),
      ui_(SetUp(*this)),
      pages_{
          {{DescriptionKinds()[kImageDescriptions], *ui_->frmImage, *ui_->btnImageDescriptionsHeaderAndFooter,
            *ui_->comboImageDescriptionPlacement, *ui_->comboImageDescriptionAlignment, *ui_->textHeader,
            *ui_->textFooter, *ui_->frmImageDescription, *ui_->textDescription},
           {DescriptionKinds()[kThumbnailDescriptions], *ui_->frmThumb, *ui_->btnThumbnailDescriptionsHeaderAndFooter,
            *ui_->comboThumbnailDescriptionPlacement, *ui_->comboThumbnailDescriptionAlignment, *ui_->textThumbHeader,
            *ui_->textThumbFooter, *ui_->frmThumbDescription, *ui_->textThumbDescription}}} {
  auto* menu = new ucPopupMenu(*this);
  for (const Page& page : pages_) {
    FillList(page.placement, core::FieldOf(page.kind.fields.placement).values);
    for (QPlainTextEdit* box : {&page.header, &page.footer, &page.text}) menu->Serve(*box);
    Connect(page);
  }
  connect(ui_->tabDescription, &QTabWidget::currentChanged, this, &frmImageDescriptions::TurnPage);
  connect(ui_->btnClearAll, &QPushButton::clicked, this, &frmImageDescriptions::ClearAll);
  connect(ui_->btnClose, &QPushButton::clicked, this, &frmImageDescriptions::reject);
  EnablePage();
  FollowSelection();
}

frmImageDescriptions::~frmImageDescriptions() = default;

void frmImageDescriptions::Connect(const Page& page) {
  connect(&page.header, &QPlainTextEdit::textChanged, this,
          [this, &page] { WriteSetting(page.header, page.kind.fields.header); });
  connect(&page.footer, &QPlainTextEdit::textChanged, this,
          [this, &page] { WriteSetting(page.footer, page.kind.fields.footer); });
  connect(&page.text, &QPlainTextEdit::textChanged, this,
          [this, &page] { binder_.Edit([&](core::ProjectEditor&) { model_.SetText(page.kind, CodeOf(page.text)); }); });
  connect(&page.placement, &QComboBox::activated, this, [this, &page](int index) {
    binder_.Edit([&](core::ProjectEditor&) { model_.ChoosePlacement(page.kind, static_cast<core::Choice>(index)); });
    ShowAlignments(page);
  });
  connect(&page.alignment, &QComboBox::activated, this,
          [this, &page](int index) { model_.ChooseAlignment(page.kind, static_cast<core::Choice>(index)); });
  connect(&page.headerAndFooter, &QPushButton::clicked, this, [this, &page] { EditHeaderAndFooter(page); });
}

void frmImageDescriptions::WriteSetting(QPlainTextEdit& box, std::string core::GalleryProject::*field) {
  binder_.Edit([&](core::ProjectEditor& editor) { editor.Set(field, CodeOf(box)); });
}

void frmImageDescriptions::FollowSelection() {
  const std::string image = model_.ImageName();
  const bool sameProject = std::exchange(shownProject_, project_.ProjectFileName) == project_.ProjectFileName;
  const bool sameImage = std::exchange(shownImage_, image) == image && sameProject;
  for (const Page& page : pages_) {
    page.caption.setTitle(WithoutMnemonics(model_.Caption(page.kind)));
    Fill(page.text, model_.Text(page.kind), sameImage);
    Fill(page.header, project_.settings.*page.kind.fields.header, sameProject);
    Fill(page.footer, project_.settings.*page.kind.fields.footer, sameProject);
  }
  if (isVisible()) ShowPlacings();
}

// A box that already shows the text is left alone, with its cursor and undo history. The history of another image or
// project is cleared: it would undo into the wrong text.
void frmImageDescriptions::Fill(QPlainTextEdit& box, const std::string& text, bool sameSubject) {
  if (sameSubject && CodeOf(box, text) == text) return;
  const QSignalBlocker quiet(box);
  ShowCode(box, text);
}

void frmImageDescriptions::ShowPlacings() {
  model_.TakePlacings();
  for (const Page& page : pages_) {
    page.placement.setCurrentIndex(model_.Shown(page.kind).placement);
    ShowAlignments(page);
  }
}

void frmImageDescriptions::ShowAlignments(const Page& page) {
  FillList(page.alignment, model_.Alignments(page.kind));
  page.alignment.setCurrentIndex(model_.Shown(page.kind).alignment);
  page.alignment.setEnabled(model_.IsAlignmentEnabled(page.kind));
}

const frmImageDescriptions::Page& frmImageDescriptions::CurrentPage() const {
  return pages_[static_cast<std::size_t>(ui_->tabDescription->currentIndex())];
}

void frmImageDescriptions::EnablePage() {
  for (const Page& page : pages_) page.frame.setEnabled(&page == &CurrentPage());
}

// Otherwise the page that is left would pass the focus on to the next control, the button that clears everything.
void frmImageDescriptions::TurnPage() {
  EnablePage();
  if (focusWidget() != ui_->tabDescription->tabBar()) CurrentPage().text.setFocus();
}

void frmImageDescriptions::EditHeaderAndFooter(const Page& page) {
  const HeaderAndFooter before = {CodeOf(page.header), CodeOf(page.footer)};
  const HeaderAndFooter after = EditHTML(std::string(page.kind.headerFooterTitle), before, boxes_, this);
  if (after.header != before.header) ShowCode(page.header, after.header);
  if (after.footer != before.footer) ShowCode(page.footer, after.footer);
}

void frmImageDescriptions::ClearAll() {
  const Page& page = CurrentPage();
  if (!model_.MayClearAll(page.kind)) return;
  binder_.Edit([&](core::ProjectEditor&) { model_.ClearAll(page.kind); });
  const QSignalBlocker quiet(page.text);
  ShowCode(page.text, {});
}

void frmImageDescriptions::StorePlacings() {
  if (!model_.HasUnstoredPlacings()) return;
  binder_.Edit([this](core::ProjectEditor& editor) { model_.StorePlacings(editor); });
}

void frmImageDescriptions::reject() {
  StorePlacings();
  QDialog::reject();
}

// A QDialog that is shown again takes its first size and the middle of its owner.
void frmImageDescriptions::setVisible(bool visible) {
  if (isVisible() && !visible) place_ = saveGeometry();
  if (!isVisible() && visible && !place_.isEmpty()) restoreGeometry(place_);
  QDialog::setVisible(visible);
}

void frmImageDescriptions::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    ShowPlacings();
    CurrentPage().text.setFocus();
  }
  QDialog::showEvent(event);
}

void frmImageDescriptions::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) model_.Disappear();
  QDialog::hideEvent(event);
}

}  // namespace vantorium::ui
