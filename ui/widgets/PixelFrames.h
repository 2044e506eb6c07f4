#pragma once

#include <QProxyStyle>

namespace vantorium::ui {

/// Draws the frames of controls and tabs on whole pixels when the screen's scale is a fraction, such as 1.5. Otherwise
/// lines that begin in the middle of a pixel are hidden by the frame's contents.
class PixelFrames : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace vantorium::ui
