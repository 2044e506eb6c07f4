#pragma once

#include "core/GalleryProject.h"

#include <QColor>

namespace vantorium::ui {

// A Color is 0x00BBGGRR.

[[nodiscard]] inline QColor ToQt(core::Color color) {
  return {static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF), static_cast<int>(color >> 16 & 0xFF)};
}

[[nodiscard]] inline core::Color FromQt(const QColor& color) {
  return static_cast<core::Color>(color.red()) | static_cast<core::Color>(color.green()) << 8 |
         static_cast<core::Color>(color.blue()) << 16;
}

}  // namespace vantorium::ui
