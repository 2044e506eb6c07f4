#pragma once

#include "env/Clock.h"

namespace vantorium::env {

/// The machine's local time.
class SystemClock : public Clock {
 public:
  [[nodiscard]] CivilTime Now() const override;
};

}  // namespace vantorium::env
