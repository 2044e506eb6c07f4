#pragma once

#include <cstdint>

namespace vantorium {

class Screen {
 public:
  virtual ~Screen() = default;
  /// Vertical pixels of a logical inch; 96 where nothing else is known.
  [[nodiscard]] virtual std::int32_t PixelsPerInch() const { return 96; }
};

}  // namespace vantorium
