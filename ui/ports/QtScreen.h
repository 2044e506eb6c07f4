#pragma once

#include "env/Screen.h"

namespace vantorium {

/// The screen that the program was started on.
class QtScreen : public Screen {
 public:
  [[nodiscard]] std::int32_t PixelsPerInch() const override;
};

}  // namespace vantorium
