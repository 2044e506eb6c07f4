#include "ui/widgets/StretchedPicture.h"

#include "ui/widgets/DevicePixels.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace vantorium::ui {

StretchedPicture::StretchedPicture(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setFocusPolicy(Qt::StrongFocus);
}

void StretchedPicture::Show(const QImage& picture) {
  picture_ = picture;
  setCursor(picture.isNull() ? Qt::ArrowCursor : Qt::PointingHandCursor);
  update();
}

void StretchedPicture::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    const QTransform toPixels = painter.deviceTransform();
    painter.drawImage(toPixels.inverted().mapRect(QRectF(WholePixels(toPixels, contentsRect()))), picture_);
  }
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = contentsRect().adjusted(1, 1, -1, -1);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void StretchedPicture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) emit Clicked();
}

void StretchedPicture::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    emit Clicked();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace vantorium::ui
