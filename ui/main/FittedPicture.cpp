#include "ui/main/FittedPicture.h"

#include "ui/widgets/DevicePixels.h"

#include <QMouseEvent>
#include <QPainter>

namespace vantorium::ui {
namespace {

// Pictures are decoded for at least this many pixels, so that there are enough for another size or screen.
constexpr QSize kSmallestBox(800, 600);

}  // namespace

FittedPicture::FittedPicture(QWidget* parent) : QFrame(parent) {
  connect(&loader_, &PreviewLoader::Loaded, this, &FittedPicture::Show);
}

void FittedPicture::Load(const std::optional<std::filesystem::path>& file, image::Corrections corrections) {
  const QSize box = DevicePixels(*this).expandedTo(kSmallestBox);
  loader_.Load(file, {.width = box.width(), .height = box.height()}, corrections);
}

void FittedPicture::Clear() {
  loader_.Cancel();
  picture_ = {};
  update();
}

void FittedPicture::Show(const QImage& picture) {
  picture_ = picture;
  fitted_ = {};
  update();
  if (picture.isNull()) {
    emit Failed();
  } else {
    emit Shown();
  }
}

void FittedPicture::FitPicture() {
  const QSize size = picture_.size().scaled(DevicePixels(*this), Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
  if (fitted_.size() == size && fitted_.devicePixelRatio() == devicePixelRatioF()) return;
  fitted_ = QPixmap::fromImage(picture_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  fitted_.setDevicePixelRatio(devicePixelRatioF());
}

void FittedPicture::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (picture_.isNull() || contentsRect().isEmpty()) return;
  FitPicture();
  const QSizeF size = fitted_.deviceIndependentSize();
  const QRectF area = contentsRect();
  const qreal ratio = devicePixelRatioF();
  const QPointF corner = area.center() - QPointF(size.width() / 2, size.height() / 2);
  QPainter(this).drawPixmap(QPointF((corner * ratio).toPoint()) / ratio,
                            fitted_);  // on whole pixels, so it stays sharp
}

void FittedPicture::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit DoubleClicked();
}

}  // namespace vantorium::ui
