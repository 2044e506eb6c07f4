#include "ui/ports/QtScreen.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace vantorium::ui {

std::int32_t QtScreen::PixelsPerInch() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? env::Screen::PixelsPerInch()
                           : static_cast<std::int32_t>(std::lround(screen->logicalDotsPerInchY()));
}

}  // namespace vantorium::ui
