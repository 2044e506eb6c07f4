#pragma once

#include "env/Clock.h"

#include <random>

namespace vantorium {

/// Evenly spread numbers from 0 up to, but not including, 1.
class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  /// Begins a new sequence that depends on the time of day.
  virtual void SeedFromClock() = 0;
  [[nodiscard]] virtual double Next() = 0;
};

/// The random numbers of the program: steps of 2 to the power of -32.
class ClockSeededNumbers : public RandomNumbers {
 public:
  explicit ClockSeededNumbers(const Clock& clock) : clock_(clock) {}
  void SeedFromClock() override;
  [[nodiscard]] double Next() override;

 private:
  const Clock& clock_;
  std::mt19937 engine_;
};

}  // namespace vantorium
