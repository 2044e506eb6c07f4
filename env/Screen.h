#pragma once

#include <cstdint>

namespace vantorium::env {

class Screen {
 public:
  virtual ~Screen() = default;
  /// Returns the vertical pixels per logical inch; 96 if nothing else is known.
  [[nodiscard]] virtual std::int32_t PixelsPerInch() const { return 96; }
};

}  // namespace vantorium::env
