#include "ui/PixelFrames.h"

#include "ui/DevicePixels.h"

#include <QPainter>
#include <QStyleOptionFrame>
#include <cmath>

namespace vantorium {

void PixelFrames::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const qreal scale = painter->device()->devicePixelRatioF();
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element != CE_ShapedFrame || frame == nullptr || scale == std::floor(scale)) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  const QTransform toPixels = painter->deviceTransform();
  QStyleOptionFrame onPixels = *frame;
  onPixels.rect = WholePixels(toPixels, option->rect);
  painter->save();
  painter->setTransform(toPixels.inverted(), true);
  QProxyStyle::drawControl(element, &onPixels, painter, widget);
  painter->restore();
}

}  // namespace vantorium
