#include "core/Shuffle.h"
#include "tests/fakes/ScriptedShuffle.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

using Names = std::vector<std::string>;

ImageList ListOfLetters(std::size_t count) {
  ImageList list;
  for (std::size_t i = 0; i < count; ++i) {
    ImageEntry entry;
    entry.ImageName = count <= 26 ? std::string(1, static_cast<char>('a' + i)) : std::to_string(i);
    entry.ImageDescription = "about " + entry.ImageName;
    list.Insert(i + 1, std::move(entry));
  }
  return list;
}

Names NamesOf(const ImageList& list) {
  Names names;
  for (std::size_t i = 1; i <= list.Count(); ++i) names.push_back(list.Entry(i).ImageName);
  return names;
}

TEST(Shuffle, DrawsARowThenItsNewPosition) {
  ImageList list = ListOfLetters(3);
  fakes::ScriptedShuffle script({0.0, 0.99, 0.0, 0.0, 0.5, 0.5, 0.34, 0.0, 0.0, 0.0, 0.0, 0.0});
  EXPECT_TRUE(ShuffleRows(list, script.Tools()));
  // 1 to 3: b c a. 1 to 1. 2 to 2. 2 to 1: c b a. 1 to 1 twice.
  EXPECT_EQ(NamesOf(list), (Names{"c", "b", "a"}));
  EXPECT_EQ(script.draws, 12U);
}

TEST(Shuffle, TheLargestRandomNumberStaysInTheList) {
  for (const std::size_t count : {2U, 3U, 7U, 25U}) {
    ImageList list = ListOfLetters(count);
    fakes::ScriptedShuffle script({std::nextafter(1.0, 0.0)});
    EXPECT_TRUE(ShuffleRows(list, script.Tools())) << count;
  }
}

TEST(Shuffle, RowsKeepNamesAndTexts) {
  ImageList list = ListOfLetters(5);
  fakes::ScriptedShuffle script({0.1, 0.7, 0.3, 0.9, 0.55});
  EXPECT_TRUE(ShuffleRows(list, script.Tools()));
  Names names = NamesOf(list);
  for (std::size_t i = 1; i <= 5; ++i) EXPECT_EQ(list.Entry(i).ImageDescription, "about " + names[i - 1]);
  std::ranges::sort(names);
  EXPECT_EQ(names, (Names{"a", "b", "c", "d", "e"}));
}

TEST(Shuffle, TheProgressBarShowsTheShareOfTwiceAsManyRoundsAsRows) {
  ImageList list = ListOfLetters(2);
  fakes::ScriptedShuffle script({0.0});
  EXPECT_TRUE(ShuffleRows(list, script.Tools()));
  EXPECT_EQ(script.percents, (std::vector<double>{25, 50, 75, 100}));
}

TEST(Shuffle, TheEventLoopHasATurnInEachRoundFromTheTwoHundredFiftiethOn) {
  struct Case {
    std::size_t rows;
    int turns;
  };
  for (const auto& [rows, turns] : {Case{124, 0}, Case{125, 1}, Case{150, 51}}) {
    ImageList list = ListOfLetters(rows);
    fakes::ScriptedShuffle script({0.0});
    EXPECT_TRUE(ShuffleRows(list, script.Tools()));
    EXPECT_EQ(script.turns, turns) << rows;
    EXPECT_EQ(script.percents.size(), 2 * rows);
    EXPECT_EQ(script.roundsBeforeFirstTurn, turns > 0 ? 249U : 0U) << rows;
  }
}

TEST(Shuffle, StopEndsItBeforeTheMoveOfTheRound) {
  ImageList list = ListOfLetters(200);
  fakes::ScriptedShuffle script({0.0, 0.999});
  script.stopInTurn = 3;
  EXPECT_FALSE(ShuffleRows(list, script.Tools()));
  EXPECT_EQ(script.turns, 3);
  EXPECT_EQ(script.percents.size(), 251U);
  EXPECT_EQ(script.draws, 502U);
  EXPECT_EQ(list.Entry(1).ImageName, std::to_string(251 % 200)) << "251 times the first row went to the end";
}

}  // namespace
}  // namespace vantorium::core
