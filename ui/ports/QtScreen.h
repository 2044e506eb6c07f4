#pragma once

#include "env/Screen.h"

namespace vantorium {

/// The desktop's primary screen.
class QtScreen : public Screen {
 public:
  [[nodiscard]] std::int32_t PixelsPerInch() const override;
};

}  // namespace vantorium
