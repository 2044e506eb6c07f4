#pragma once

#include "env/CivilTime.h"

namespace vantorium::env {

class Clock {
 public:
  virtual ~Clock() = default;
  /// Returns the current local date and time.
  [[nodiscard]] virtual CivilTime Now() const = 0;
};

}  // namespace vantorium::env
