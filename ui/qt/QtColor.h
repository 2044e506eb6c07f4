#pragma once

#include "core/GalleryProject.h"

#include <QColor>

namespace vantorium {

// A Color is 0x00BBGGRR.

[[nodiscard]] inline QColor ToQt(Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

[[nodiscard]] inline Color FromQt(const QColor& color) {
  return static_cast<Color>(color.red()) | static_cast<Color>(color.green()) << 8 |
         static_cast<Color>(color.blue()) << 16;
}

}  // namespace vantorium
