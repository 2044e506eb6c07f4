#include "publish/SlicedWait.h"
#include "tests/fakes/CountingEventLoop.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using Milliseconds = std::chrono::milliseconds;

bool SleepThrough(Milliseconds slice) {
  std::this_thread::sleep_for(slice);
  return false;
}

TEST(SlicedWait, AWaitThatEndsAtOnceNeedsNoTurn) {
  fakes::CountingEventLoop loop;
  const bool abandoned = false;
  EXPECT_TRUE(SlicedWait(loop, Milliseconds(1000), abandoned).Until([](Milliseconds) { return true; }));
  EXPECT_EQ(loop.turns, 0);
}

TEST(SlicedWait, TheEventLoopHasATurnBetweenTwoSlices) {
  fakes::CountingEventLoop loop;
  const bool abandoned = false;
  int slices = 0;
  EXPECT_TRUE(SlicedWait(loop, Milliseconds(0), abandoned).Until([&](Milliseconds) { return ++slices == 4; }));
  EXPECT_EQ(loop.turns, 3);
}

TEST(SlicedWait, EndsAtItsTimeLimit) {
  fakes::CountingEventLoop loop;
  const bool abandoned = false;
  EXPECT_FALSE(SlicedWait(loop, Milliseconds(50), abandoned).Until(SleepThrough));
  EXPECT_GT(loop.turns, 0);
}

TEST(SlicedWait, TimeSpentInATurnDoesNotCount) {
  fakes::CountingEventLoop loop;
  loop.onTurn = [](int) { std::this_thread::sleep_for(Milliseconds(50)); };
  const bool abandoned = false;
  EXPECT_TRUE(SlicedWait(loop, Milliseconds(250), abandoned).Until([&](Milliseconds) { return loop.turns == 8; }));
}

TEST(SlicedWait, EndsWhenItIsAbandonedInATurn) {
  fakes::CountingEventLoop loop;
  bool abandoned = false;
  loop.onTurn = [&](int turn) { abandoned = turn == 2; };
  EXPECT_FALSE(SlicedWait(loop, Milliseconds(0), abandoned).Until([](Milliseconds) { return false; }));
  EXPECT_EQ(loop.turns, 2);
}

}  // namespace
}  // namespace vantorium::publish
