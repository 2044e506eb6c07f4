#include "ui/PictureBox.h"

#include "ui/ports/QtPicture.h"

#include <QPainter>
#include <cmath>

namespace vantorium {
namespace {

constexpr QSize kInside(440, 330);

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PictureBox::sizeHint() const {
  return kInside + QSize(2 * frameWidth(), 2 * frameWidth());
}

PictureSize PictureBox::SizeInPixels() const {
  const auto pixels = [this](int units) { return static_cast<std::int32_t>(std::lround(units * devicePixelRatioF())); };
  return {pixels(contentsRect().width()), pixels(contentsRect().height())};
}

void PictureBox::Clear() {
  shown_ = {};
  update();
}

void PictureBox::Show(const cDIBSection& picture) {
  const PictureSize size = SizeInPixels();
  shown_ = QImage(size.width, size.height, QImage::Format_ARGB32_Premultiplied);
  shown_.fill(Qt::transparent);
  QPainter painter(&shown_);
  PaintPicture(picture, painter);
  update();
}

void PictureBox::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  if (shown_.isNull()) return;
  QPainter painter(this);
  painter.drawImage(contentsRect(), shown_);
}

}  // namespace vantorium
