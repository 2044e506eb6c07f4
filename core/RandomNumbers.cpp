#include "core/RandomNumbers.h"

namespace vantorium::core {

void ClockSeededNumbers::SeedFromClock() {
  const env::CivilTime now = clock_.Now();
  const int day = (now.year * 12 + now.month) * 31 + now.day;
  const int second = (now.hour * 60 + now.minute) * 60 + now.second;
  std::seed_seq seed = {day, second};
  engine_.seed(seed);
}

double ClockSeededNumbers::Next() {
  constexpr double kStep = 1.0 / 4294967296.0;
  return static_cast<double>(engine_()) * kStep;
}

}  // namespace vantorium::core
