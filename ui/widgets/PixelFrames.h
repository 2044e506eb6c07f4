#pragma once

#include <QProxyStyle>

namespace vantorium {

/// Draws the frames of controls on whole pixels where the screen's scale is a fraction, 1.5 for example: lines that
/// begin in the middle of a pixel are lost beneath what the frame holds.
class PixelFrames : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

}  // namespace vantorium
