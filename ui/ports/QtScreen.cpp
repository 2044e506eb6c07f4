#include "ui/ports/QtScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace vantorium {

std::int32_t QtScreen::PixelsPerInch() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? Screen::PixelsPerInch()
                           : static_cast<std::int32_t>(std::lround(screen->logicalDotsPerInchY()));
}

}  // namespace vantorium
