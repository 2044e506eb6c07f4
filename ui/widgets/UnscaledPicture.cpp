#include "ui/widgets/UnscaledPicture.h"

#include "ui/qt/QtPicture.h"
#include "ui/widgets/DevicePixels.h"

#include <QPainter>

namespace vantorium::ui {
namespace {

constexpr QSize kInside(440, 330);

}  // namespace

UnscaledPicture::UnscaledPicture(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize UnscaledPicture::sizeHint() const {
  return kInside + QSize(2 * frameWidth(), 2 * frameWidth());
}

image::PictureSize UnscaledPicture::SizeInPixels() const {
  const QSize size = DevicePixels(*this);
  return {size.width(), size.height()};
}

void UnscaledPicture::Clear() {
  shown_ = {};
  update();
}

void UnscaledPicture::Show(const image::cDIBSection& picture) {
  const image::PictureSize size = SizeInPixels();
  shown_ = QImage(size.width, size.height, QImage::Format_ARGB32_Premultiplied);
  shown_.fill(Qt::transparent);
  QPainter painter(&shown_);
  PaintPicture(picture, painter);
  update();
}

void UnscaledPicture::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (shown_.isNull()) return;
  QPainter painter(this);
  painter.drawImage(contentsRect(), shown_);
}

}  // namespace vantorium::ui
