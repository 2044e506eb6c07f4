#pragma once

#include "core/GalleryProject.h"

#include <QColor>

namespace vantorium {

// A Colour is 0x00BBGGRR.

[[nodiscard]] inline QColor ToQt(Colour colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF), static_cast<int>(colour >> 16 & 0xFF)};
}

[[nodiscard]] inline Colour FromQt(const QColor& colour) {
  return static_cast<Colour>(colour.red()) | static_cast<Colour>(colour.green()) << 8 |
         static_cast<Colour>(colour.blue()) << 16;
}

}  // namespace vantorium
