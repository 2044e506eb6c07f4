#include "ui/widgets/PixelFrames.h"

#include <QPainter>
#include <QStyleOptionFrame>
#include <cmath>

namespace vantorium {

void PixelFrames::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const QTransform toPixels = painter->deviceTransform();
  const qreal scale = toPixels.m11();
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != CE_ShapedFrame || frame == nullptr || scale == std::floor(scale)) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  QStyleOptionFrame onPixels = *frame;
  onPixels.rect = toPixels.mapRect(QRectF(option->rect)).toRect();
  painter->save();
  painter->setTransform(toPixels.inverted(), true);
  QProxyStyle::drawControl(element, &onPixels, painter, widget);
  painter->restore();
}

}  // namespace vantorium
