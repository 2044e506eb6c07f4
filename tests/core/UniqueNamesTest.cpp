#include "core/UniqueNames.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

TEST(UniqueNames, AFreeNameIsTakenUnchanged) {
  UniqueNames names;
  EXPECT_EQ(names.Take("a.jpg"), "a.jpg");
  EXPECT_TRUE(names.IsTaken("a.jpg"));
  EXPECT_FALSE(names.IsTaken("b.jpg"));
}

TEST(UniqueNames, ATakenNameGetsTheLowestFreeNumber) {
  UniqueNames names;
  for (const char* expected : {"a.jpg", "a.jpg_1", "a.jpg_2", "a.jpg_3"}) EXPECT_EQ(names.Take("a.jpg"), expected);
}

TEST(UniqueNames, NumberedNamesThatAreAlreadyTakenAreSkipped) {
  UniqueNames names;
  for (const char* name : {"a_2", "a", "a_1"}) EXPECT_EQ(names.Take(name), name);
  EXPECT_EQ(names.Take("a"), "a_3");
  EXPECT_EQ(names.Take("a_4"), "a_4");
  EXPECT_EQ(names.Take("a"), "a_5");
}

TEST(UniqueNames, NamesAreComparedExactly) {
  UniqueNames names;
  EXPECT_EQ(names.Take("a.jpg"), "a.jpg");
  EXPECT_EQ(names.Take("A.jpg"), "A.jpg");
  EXPECT_EQ(names.Take("a.jpg "), "a.jpg ");
}

TEST(UniqueNames, AReleasedNumberIsTheLowestFreeAgain) {
  UniqueNames names;
  for (int i = 0; i < 6; ++i) names.Take("a");
  names.Release("a_4");
  names.Release("a_2");
  EXPECT_EQ(names.Take("a"), "a_2");
  EXPECT_EQ(names.Take("a"), "a_4");
  EXPECT_EQ(names.Take("a"), "a_6");
}

TEST(UniqueNames, AReleasedNumberedNameCanBeTaken) {
  UniqueNames names;
  for (int i = 0; i < 4; ++i) names.Take("a");
  names.Release("a_1");
  EXPECT_EQ(names.Take("a_1"), "a_1");
  EXPECT_EQ(names.Take("a"), "a_4");
}

TEST(UniqueNames, AReleasedNameIsFreeWhileItsNumberedNamesStayTaken) {
  UniqueNames names;
  for (int i = 0; i < 3; ++i) names.Take("a");
  names.Release("a");
  EXPECT_EQ(names.Take("a"), "a");
  EXPECT_EQ(names.Take("a"), "a_3");
}

TEST(UniqueNames, NumbersBeginAtOneAgainWhenAllAreReleased) {
  UniqueNames names;
  for (int i = 0; i < 5; ++i) names.Take("a");
  for (const char* name : {"a_3", "a_1", "a_4", "a_2"}) names.Release(name);
  EXPECT_EQ(names.Take("a"), "a_1");
  EXPECT_EQ(names.Take("a"), "a_2");
}

TEST(UniqueNames, ANumberedNameCanBeNumberedAgain) {
  UniqueNames names;
  for (int i = 0; i < 2; ++i) names.Take("a");
  EXPECT_EQ(names.Take("a_1"), "a_1_1");
  names.Release("a_1");
  EXPECT_EQ(names.Take("a"), "a_1");
  EXPECT_EQ(names.Take("a_1"), "a_1_2");
}

TEST(UniqueNames, NamesThatOnlyLookNumberedAreOrdinaryNames) {
  UniqueNames names;
  for (int i = 0; i < 5; ++i) names.Take("a");
  const char* const kNames[] = {"a_", "a_0", "a_01", "a_x", "a_-1", "a_1x", "a_ 1", "a_99999999999999999999999", "_1"};
  for (const char* name : kNames) EXPECT_EQ(names.Take(name), name);
  for (const char* name : kNames) names.Release(name);
  EXPECT_EQ(names.Take("a"), "a_5");
  EXPECT_EQ(names.Take(""), "");
  EXPECT_EQ(names.Take(""), "_1");
}

TEST(UniqueNames, ReleasingANameThatIsNotTakenChangesNothing) {
  UniqueNames names;
  for (int i = 0; i < 2; ++i) names.Take("a");
  names.Release("b");
  names.Release("a_7");
  EXPECT_EQ(names.Take("a"), "a_2");
}

TEST(UniqueNames, ClearFreesEverything) {
  UniqueNames names;
  for (int i = 0; i < 5; ++i) names.Take("a");
  names.Clear();
  EXPECT_EQ(names.Take("a"), "a");
  EXPECT_EQ(names.Take("a"), "a_1");
}

// A search from 1 for each name would take hours here.
TEST(UniqueNames, AHundredThousandEqualNamesDoNotTakeQuadraticTime) {
  constexpr int kCount = 100'000;
  UniqueNames names;
  for (int i = 0; i < kCount; ++i) names.Take("same.jpg");
  EXPECT_TRUE(names.IsTaken("same.jpg_99999"));
  for (int i = 0; i < kCount; ++i) {
    names.Release("same.jpg_1");
    names.Take("same.jpg");
    ASSERT_EQ(names.Take("same.jpg"), "same.jpg_" + std::to_string(kCount + i));
  }
}

/// Compares with a plain implementation over a long sequence of takes and releases.
TEST(UniqueNames, AgreesWithALinearSearchOnMixedOperations) {
  UniqueNames names;
  std::vector<std::string> taken;
  const auto isTaken = [&](const std::string& name) { return std::ranges::count(taken, name) > 0; };
  const std::vector<std::string> wishes = {"a", "a_1", "a_2", "a_1_1", "b", "a_3", "a_7"};
  unsigned state = 12345;
  const auto random = [&](std::size_t below) {
    state = state * 1664525U + 1013904223U;
    return (state >> 16) % below;
  };
  for (int step = 0; step < 4000; ++step) {
    if (taken.size() > 1 && random(100) < (step / 500 % 2 == 0 ? 40 : 60)) {
      const std::size_t victim = random(taken.size());
      names.Release(taken[victim]);
      taken.erase(taken.begin() + static_cast<std::ptrdiff_t>(victim));
      continue;
    }
    const std::string& wish = wishes[random(wishes.size())];
    std::string expected = wish;
    for (int n = 1; isTaken(expected); ++n) expected = wish + "_" + std::to_string(n);
    ASSERT_EQ(names.Take(wish), expected) << "step " << step << ", wish " << wish;
    taken.push_back(expected);
  }
}

}  // namespace
}  // namespace vantorium::core
