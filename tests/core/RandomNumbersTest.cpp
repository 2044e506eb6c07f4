#include "core/RandomNumbers.h"

#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

struct SettableClock : env::Clock {
  env::CivilTime now = {2024, 5, 6, 7, 8, 9};
  [[nodiscard]] env::CivilTime Now() const override { return now; }
};

std::vector<double> FirstNumbers(const SettableClock& clock) {
  ClockSeededNumbers random(clock);
  random.SeedFromClock();
  std::vector<double> numbers;
  for (int i = 0; i < 1000; ++i) numbers.push_back(random.Next());
  return numbers;
}

TEST(RandomNumbers, AreSpreadFromZeroToBelowOne) {
  const auto numbers = FirstNumbers({});
  double sum = 0;
  for (const double number : numbers) {
    ASSERT_GE(number, 0.0);
    ASSERT_LT(number, 1.0);
    sum += number;
  }
  EXPECT_NEAR(sum / static_cast<double>(numbers.size()), 0.5, 0.05);
}

TEST(RandomNumbers, TheClockDecidesTheSequence) {
  SettableClock clock;
  const auto first = FirstNumbers(clock);
  EXPECT_EQ(FirstNumbers(clock), first);
  clock.now.second = 10;
  EXPECT_NE(FirstNumbers(clock), first);
  clock.now.second = 9;
  clock.now.day = 7;
  EXPECT_NE(FirstNumbers(clock), first);
}

}  // namespace
}  // namespace vantorium::core
