#pragma once

#include "env/Clock.h"

namespace vantorium::fakes {

class FixedClock : public env::Clock {
 public:
  [[nodiscard]] env::CivilTime Now() const override { return now; }

  env::CivilTime now{2026, 3, 4, 5, 6, 7};
};

}  // namespace vantorium::fakes
