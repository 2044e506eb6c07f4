#pragma once

#include "env/Screen.h"

namespace vantorium::ui {

/// The desktop's primary screen.
class QtScreen : public env::Screen {
 public:
  [[nodiscard]] std::int32_t PixelsPerInch() const override;
};

}  // namespace vantorium::ui
