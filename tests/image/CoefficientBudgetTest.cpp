#include "image/CoefficientBudget.h"

#include <atomic>
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using namespace std::chrono_literals;

/// Takes a share in its own thread, and tells whether it has it yet.
class Taker {
 public:
  Taker(CoefficientBudget& budget, std::uint64_t bytes)
      : thread_([this, &budget, bytes](const std::stop_token& stop) {
          const auto share = budget.Take(bytes, stop);
          has_ = true;
          has_.notify_all();
          while (!stop.stop_requested()) std::this_thread::sleep_for(1ms);
        }) {}
  [[nodiscard]] bool GetsItSoon() const {
    for (int i = 0; i < 50 && !has_; ++i) std::this_thread::sleep_for(1ms);
    return has_;
  }
  void AwaitShare() const { has_.wait(false); }
  void Release() {
    thread_.request_stop();
    thread_.join();
  }

 private:
  std::atomic<bool> has_ = false;
  std::jthread thread_;
};

TEST(CoefficientBudget, SharesThatFitAreGrantedAtOnce) {
  CoefficientBudget budget(100);
  const auto first = budget.Take(60, {});
  const auto second = budget.Take(40, {});
  const auto nothing = budget.Take(0, {});
}

TEST(CoefficientBudget, AShareThatDoesNotFitWaitsUntilOthersAreReleased) {
  CoefficientBudget budget(100);
  Taker first(budget, 60);
  first.AwaitShare();
  Taker second(budget, 60);
  EXPECT_FALSE(second.GetsItSoon());
  first.Release();
  second.AwaitShare();
}

TEST(CoefficientBudget, AShareLargerThanTheBudgetIsGrantedAlone) {
  CoefficientBudget budget(100);
  Taker small(budget, 1);
  small.AwaitShare();
  Taker large(budget, 1000);
  EXPECT_FALSE(large.GetsItSoon());
  small.Release();
  large.AwaitShare();
}

TEST(CoefficientBudget, AStopRequestEndsTheWait) {
  CoefficientBudget budget(100);
  const auto whole = budget.Take(100, {});
  Taker waiting(budget, 50);
  EXPECT_FALSE(waiting.GetsItSoon());
  waiting.Release();
}

}  // namespace
}  // namespace vantorium::image
