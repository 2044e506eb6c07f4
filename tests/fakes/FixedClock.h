#pragma once

#include "env/Clock.h"

namespace vantorium::fakes {

class FixedClock : public Clock {
 public:
  [[nodiscard]] CivilTime Now() const override { return now; }

  CivilTime now{2026, 3, 4, 5, 6, 7};
};

}  // namespace vantorium::fakes
