#include "ui/dialogs/frmProgress.h"

#include "ui/model/dialogs/ProgressButtons.h"
#include "ui/qt/QtText.h"
#include "ui_frmProgress.h"

#include <algorithm>

namespace vantorium::ui {
namespace {

constexpr int kDrawInterval = 33;  // milliseconds

void ShowBar(QProgressBar& bar, int maximum, int value) {
  bar.setRange(0, std::max(maximum, 1));  // QProgressBar shows 0 to 0 as a busy indicator
  bar.setValue(std::clamp(value, 0, bar.maximum()));
}

}  // namespace

frmProgress::frmProgress(publish::UploadLog& log, publish::CancelPoll& cancel, env::Shell& shell, std::string appPath,
                         QWidget* parent)
    : QDialog(parent),
      publish::ProgressModel(log),
      cancel_(cancel),
      shell_(shell),
      appPath_(std::move(appPath)),
      ui_(std::make_unique<Ui::frmProgress>()) {
  ui_->setupUi(this);
  setWindowModality(Qt::WindowModal);
  resize(520, 360);
  QSizePolicy keepsItsPlace = ui_->pbFile->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  ui_->pbFile->setSizePolicy(keepsItsPlace);
  due_.setSingleShot(true);
  due_.setInterval(kDrawInterval);
  connect(&due_, &QTimer::timeout, this, &frmProgress::DrawChanges);
  connect(ui_->CancelButton, &QPushButton::clicked, this, &frmProgress::reject);
  connect(ui_->btnShowLog, &QPushButton::clicked, this, [this] { PressShowLog(shell_, appPath_); });
}

frmProgress::~frmProgress() = default;

/// The question whether to cancel runs its own event loop, in which it must not be asked again.
void frmProgress::reject() {
  if (isAsking_) return;
  isAsking_ = true;
  PressCancelButton(*this, cancel_);
  isAsking_ = false;
}

void frmProgress::Draw(publish::ProgressPart part) {
  if (part == publish::ProgressPart::Window) return ComeUp();
  changed_.set(static_cast<std::size_t>(part));
  if (!isVisible() || due_.isActive()) return;
  if (drawn_.hasExpired(kDrawInterval)) return DrawChanges();
  due_.start();
}

void frmProgress::ComeUp() {
  changed_.set();
  DrawChanges();
  setEnabled(true);  // although its owner is disabled
  show();
}

void frmProgress::DrawChanges() {
  DrawTexts();
  DrawLog();
  DrawBars();
  if (HasChanged(publish::ProgressPart::Buttons)) DrawButtons();
  if (HasChanged(publish::ProgressPart::Pointer)) IsPointerBusy() ? setCursor(Qt::WaitCursor) : unsetCursor();
  changed_.reset();
  due_.stop();
  drawn_.start();
}

void frmProgress::DrawTexts() {
  if (HasChanged(publish::ProgressPart::Caption)) setWindowTitle(ToQt(Caption()));
  if (HasChanged(publish::ProgressPart::Text1)) ui_->lblText1->setText(ToQt(Text1()));
  if (HasChanged(publish::ProgressPart::Text2)) ui_->lblText2->setText(ToQt(Text2()));
}

void frmProgress::DrawLog() {
  const bool isNew = HasChanged(publish::ProgressPart::LogBox);
  if (!isNew && !HasChanged(publish::ProgressPart::LogBoxEnd)) return;
  if (isNew) {
    ui_->infoText->clear();
    shownLog_ = 0;
  }
  AppendLog(LogBoxText());
  ui_->infoText->moveCursor(QTextCursor::End);
  ui_->infoText->ensureCursorVisible();
}

void frmProgress::AppendLog(const std::string& log) {
  const std::size_t end = log.ends_with('\r') ? log.size() - 1 : log.size();  // its LF may follow
  if (end <= shownLog_) return;
  QTextCursor cursor(ui_->infoText->document());
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(LinesToQt(std::string_view(log).substr(shownLog_, end - shownLog_)));
  shownLog_ = end;
}

void frmProgress::DrawBars() {
  if (HasChanged(publish::ProgressPart::Progress)) ShowBar(*ui_->pbProgress, GetMax(), GetProgress());
  if (!HasChanged(publish::ProgressPart::FileProgress)) return;
  ui_->pbFile->setVisible(IsFileProgressVisible());
  ShowBar(*ui_->pbFile, 100, FileProgress());
}

void frmProgress::DrawButtons() {
  ui_->CancelButton->setText(ToQt(CancelButtonCaption(*this)));
  ui_->CancelButton->setDefault(OffersClose());  // a stray Enter does not cancel a run, but closes a failed one
  ui_->btnShowLog->setVisible(IsShowLogVisible(*this));
}

}  // namespace vantorium::ui
