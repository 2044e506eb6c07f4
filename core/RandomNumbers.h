#pragma once

#include "env/Clock.h"

#include <random>

namespace vantorium::core {

/// Uniformly distributed numbers in [0, 1).
class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  /// Starts a new sequence that depends on the time of day.
  virtual void SeedFromClock() = 0;
  [[nodiscard]] virtual double Next() = 0;
};

/// The program's random numbers: multiples of 2^-32.
class ClockSeededNumbers : public RandomNumbers {
 public:
  explicit ClockSeededNumbers(const env::Clock& clock) : clock_(clock) {}
  void SeedFromClock() override;
  [[nodiscard]] double Next() override;

 private:
  const env::Clock& clock_;
  std::mt19937 engine_;
};

}  // namespace vantorium::core
