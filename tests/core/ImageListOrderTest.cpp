#include "env/RuntimeFailure.h"
#include "tests/core/ImageListFixture.h"
#include "tests/fakes/ScriptedShuffle.h"

#include <utility>

namespace vantorium::core {
namespace {

using Sorting = ImageListFixture;

TEST_F(Sorting, AsksBeforeTheUsersOwnOrderIsLost) {
  Fill({"b", "a"});
  operations.SetSortingOrder(1);
  ExpectOneBox(env::BoxKind::Question, env::BoxButtons::YesNo, "Change Sorting Order",
               "Are you sure you wish to change the Sorting Order for the Images in this Gallery?");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 1);
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Sorting, NoLeavesTheOrderAndTheListUnsorted) {
  Fill({"b", "a"});
  boxes.answers = {env::BoxAnswer::No};
  operations.SetSortingOrder(4);
  EXPECT_EQ(ListNames(), (Names{"b", "a"}));
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(images.IsKeptSorted());
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Sorting, AsksNothingIfTheListIsEmptyOrSortedOrTheChoiceIsUnsorted) {
  operations.SetSortingOrder(1);
  Fill({"b", "a"});
  operations.SetSortingOrder(2);
  operations.SetSortingOrder(0);
  operations.SetSortingOrder(0);
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(ListNames(), (Names{"b", "a"}));
}

TEST_F(Sorting, UnsortedDoesNotRestoreAnEarlierOrder) {
  Fill({"b", "a", "c"});
  operations.SetSortingOrder(1);
  operations.SetSortingOrder(0);
  EXPECT_EQ(ListNames(), (Names{"a", "b", "c"}));
  EXPECT_FALSE(images.IsKeptSorted());
  ASSERT_TRUE(Add(1, "C:\\a", "z"));
  EXPECT_EQ(ListNames(), (Names{"z", "a", "b", "c"}));
}

TEST_F(Sorting, EachIndexHasItsColumnAndDirection) {
  images.Insert(1, {"1", "p2", "00999", "20240102 00:00:00", "", ""});
  images.Insert(2, {"2", "p3", "01000", "20240103 00:00:00", "", ""});
  images.Insert(3, {"3", "p1", "00001", "20240101 12:00:00", "", ""});
  images.Insert(4, {"4", "p0", "00002", "20240101 11:00:00", "", ""});
  const Names expected[] = {{"1", "2", "3", "4"}, {"4", "3", "2", "1"}, {"4", "3", "1", "2"}, {"2", "1", "3", "4"},
                            {"3", "4", "1", "2"}, {"2", "1", "4", "3"}, {"4", "3", "1", "2"}, {"2", "1", "3", "4"}};
  for (Choice index = 1; index <= 8; ++index) {
    operations.SetSortingOrder(index);
    EXPECT_EQ(ListNames(), expected[index - 1]) << index;
    EXPECT_EQ(project.settings.comboImagesSortingOrder, index);
  }
}

TEST_F(Sorting, SizesSortAsNumbers) {
  const std::pair<const char*, std::size_t> files[] = {{"thousand", 1000}, {"less", 999}, {"ten thousand", 10000}};
  for (const auto& [name, size] : files) {
    WriteFile(name, size);
    ASSERT_TRUE(Add(1, std::string("C:\\") + name, name));
  }
  operations.SetSortingOrder(5);
  EXPECT_EQ(ListNames(), (Names{"less", "thousand", "ten thousand"}));
}

TEST_F(Sorting, AnIndexOutsideItsListIsRefused) {
  Fill({"b", "a"});
  for (const Choice index : {Choice{-1}, Choice{9}, Choice{32767}})
    EXPECT_THROW(operations.SetSortingOrder(index), env::RuntimeFailure) << index;
  EXPECT_FALSE(project.IsModified);
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
}

TEST_F(Sorting, StopSortingLeavesTheProjectUnmodified) {
  Fill({"b", "a"});
  operations.SetSortingOrder(1);
  project.IsModified = false;
  operations.StopSorting();
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(images.IsKeptSorted());
  EXPECT_FALSE(project.IsModified);
}

using ShuffleOperation = ImageListFixture;

TEST_F(ShuffleOperation, AsksNothingWithFewerThanTwoRows) {
  fakes::ScriptedShuffle script({0.0});
  operations.Shuffle(script.Tools());
  Fill({"a"});
  operations.Shuffle(script.Tools());
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_TRUE(script.calls.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ShuffleOperation, AsksThenShufflesAndSelectsTheFirstRow) {
  Fill({"a", "b", "c"});
  Select({"b"});
  images.SetCurrent(3);
  fakes::ScriptedShuffle script({0.0, 0.99});
  operations.Shuffle(script.Tools());
  ExpectOneBox(env::BoxKind::Question, env::BoxButtons::YesNo, "Shuffle Images",
               "Are you sure you wish to shuffle the Images?");
  EXPECT_EQ(script.calls, (Calls{"open", "seed", "close"}));
  EXPECT_EQ(script.percents.size(), 6U);
  EXPECT_EQ(display.calls, (Calls{"wait", "preview", "reset"}));
  EXPECT_EQ(SelectedNames(), Names{images.Entry(1).ImageName});
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_TRUE(project.IsModified);
}

TEST_F(ShuffleOperation, ChangesNothingOnNo) {
  Fill({"a", "b"});
  boxes.answers = {env::BoxAnswer::No};
  fakes::ScriptedShuffle script({0.0, 0.99});
  operations.Shuffle(script.Tools());
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_TRUE(script.calls.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ShuffleOperation, EndsSorting) {
  Fill({"a", "b", "c"});
  operations.SetSortingOrder(1);
  fakes::ScriptedShuffle script({0.0, 0.99, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
  operations.Shuffle(script.Tools());
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(images.IsKeptSorted());
  EXPECT_EQ(ListNames(), (Names{"b", "c", "a"}));
}

TEST_F(ShuffleOperation, StopSkipsOnlyTheDeselection) {
  for (int i = 0; i < 200; ++i) images.Insert(images.Count() + 1, {std::to_string(i), "", "", "", "", ""});
  Select({"7"});
  images.SetCurrent(9);
  fakes::ScriptedShuffle script({0.0, 0.999});
  script.stopInTurn = 1;
  operations.Shuffle(script.Tools());
  EXPECT_EQ(script.percents.size(), 249U);
  EXPECT_TRUE(images.IsSelected(images.PositionOf("7").value()));
  EXPECT_TRUE(images.IsSelected(1)) << "the current row";
  EXPECT_EQ(SelectedNames().size(), 2U);
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(script.calls, (Calls{"open", "seed", "close"}));
  EXPECT_EQ(display.calls, (Calls{"wait", "preview", "reset"}));
}

}  // namespace
}  // namespace vantorium::core
