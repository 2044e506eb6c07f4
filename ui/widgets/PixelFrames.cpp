#include "ui/widgets/PixelFrames.h"

#include <QPainter>
#include <QStyleOptionFrame>
#include <cmath>

namespace vantorium::ui {
namespace {

/// Calls `draw` with a copy of the option that is in pixels, and with a painter that paints pixels, if the scale is a
/// fraction. Returns false, without a call, for other scales and other options.
template <typename Option, typename Draw>
bool DrawOnPixels(const QStyleOption& option, QPainter& painter, const Draw& draw) {
  const QTransform toPixels = painter.deviceTransform();
  const qreal scale = toPixels.m11();
  const auto* frame = qstyleoption_cast<const Option*>(&option);
  if (frame == nullptr || scale == std::floor(scale)) return false;
  Option onPixels = *frame;
  onPixels.rect = toPixels.mapRect(QRectF(option.rect)).toRect();
  painter.save();
  painter.setTransform(toPixels.inverted(), true);
  draw(onPixels);
  painter.restore();
  return true;
}

}  // namespace

void PixelFrames::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const auto draw = [&](const QStyleOption& it) { QProxyStyle::drawControl(element, &it, painter, widget); };
  if (element != CE_ShapedFrame || !DrawOnPixels<QStyleOptionFrame>(*option, *painter, draw)) draw(*option);
}

void PixelFrames::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const auto draw = [&](const QStyleOption& it) { QProxyStyle::drawPrimitive(element, &it, painter, widget); };
  if (element != PE_FrameTabWidget || !DrawOnPixels<QStyleOptionTabWidgetFrame>(*option, *painter, draw)) draw(*option);
}

}  // namespace vantorium::ui
