#include "ui/dialogs/frmInvalidImage.h"

#include "ui/qt/QtText.h"
#include "ui_frmInvalidImage.h"

#include <QIcon>
#include <QShowEvent>
#include <QStyle>

namespace vantorium::ui {

frmInvalidImage::frmInvalidImage(env::Shell& shell, QWidget* parent)
    : QDialog(parent), shell_(shell), ui_(std::make_unique<Ui::frmInvalidImage>()) {
  ui_->setupUi(this);
  const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  ui_->lblIcon->setPixmap(QIcon(":/vantorium/corrupted.svg").pixmap(QSize(size, size), devicePixelRatioF()));
  connect(ui_->btnIgnore, &QPushButton::clicked, this, [this] { Answer(InvalidImageAnswer::Ignore); });
  connect(ui_->btnRetry, &QPushButton::clicked, this, [this] { Answer(InvalidImageAnswer::Retry); });
  connect(ui_->btnRemove, &QPushButton::clicked, this, [this] { Answer(InvalidImageAnswer::Remove); });
}

frmInvalidImage::~frmInvalidImage() = default;

InvalidImageAnswer frmInvalidImage::ShowDialog(const std::string& imageName) {
  ui_->lblImageName->setText(ToQt(imageName));
  answer_ = InvalidImageAnswer::Ignore;
  exec();
  return answer_;
}

void frmInvalidImage::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) shell_.Beep(env::BeepKind::Warning);
}

void frmInvalidImage::Answer(InvalidImageAnswer answer) {
  answer_ = answer;
  accept();
}

}  // namespace vantorium::ui
