#include "env/RuntimeFailure.h"
#include "tests/core/ImageListFixture.h"

#include <algorithm>

namespace vantorium::core {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;
using Move = ImageListFixture;

TEST_F(Move, AnEntryKeepsItsTextsAndReadsItsSortKeysAgain) {
  Fill({"a", "b", "c"});
  images.Select(1);
  WriteFile("a", 77);
  EXPECT_TRUE(operations.MoveEntry(1, 3));
  EXPECT_EQ(ListNames(), (Names{"b", "c", "a"}));
  const ImageEntry& entry = images.Entry(3);
  EXPECT_EQ(entry.SourcePath, "C:\\a");
  EXPECT_EQ(entry.SizeKey, "00000000000000000077");
  EXPECT_EQ(entry.ImageDescription, "i a");
  EXPECT_EQ(entry.ThumbnailDescription, "t a");
  EXPECT_FALSE(images.IsSelected(3));
  EXPECT_TRUE(operations.MoveEntry(3, 2));
  EXPECT_EQ(ListNames(), (Names{"b", "a", "c"}));
}

TEST_F(Move, TheCurrentEntryStaysCurrent) {
  Fill({"a", "b", "c"});
  images.SetCurrent(1);
  EXPECT_TRUE(operations.MoveEntry(1, 3));
  EXPECT_EQ(images.Current(), 3U);
  EXPECT_TRUE(operations.MoveEntry(1, 3));
  EXPECT_EQ(images.Current(), 2U);
}

TEST_F(Move, AnEntryWhoseFileIsMissingIsNotLost) {
  Fill({"a", "b"});
  fs::remove(folder.Path() / "a");
  EXPECT_FALSE(operations.MoveEntry(1, 2));
  ExpectFileErrorBox("C:\\a");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
}

TEST_F(Move, IndexesOutsideTheListAreRefused) {
  Fill({"a", "b"});
  EXPECT_THROW(operations.MoveEntry(0, 1), env::RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(3, 1), env::RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(1, 0), env::RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(1, 3), env::RuntimeFailure);
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
}

struct MoveCase {
  Names selected;
  Names down;
  Names up;
};

TEST_F(Move, SelectedRowsMoveDownOrUpByOneAndStaySelected) {
  const MoveCase cases[] = {
      {{}, {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
      {{"b"}, {"a", "c", "b", "d"}, {"b", "a", "c", "d"}},
      {{"b", "c"}, {"a", "d", "b", "c"}, {"b", "c", "a", "d"}},
      {{"a"}, {"b", "a", "c", "d"}, {"a", "b", "c", "d"}},
      {{"a", "c"}, {"b", "a", "d", "c"}, {"a", "b", "c", "d"}},  // moving up stops at the selected first row
      {{"d"}, {"a", "b", "c", "d"}, {"a", "b", "d", "c"}},
      {{"b", "d"}, {"a", "b", "c", "d"}, {"b", "a", "d", "c"}},  // moving down stops at the selected last row
      {{"a", "b", "c", "d"}, {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
  };
  const Names start = {"a", "b", "c", "d"};
  Fill(start);
  for (const MoveCase& moveCase : cases) {
    for (const bool down : {true, false}) {
      SCOPED_TRACE(testing::Message() << testing::PrintToString(moveCase.selected) << (down ? " down" : " up"));
      images.RenameAll("free");  // frees the names that are assigned below
      for (std::size_t i = 1; i <= 4; ++i) images.Rename(i, start[i - 1]);
      images.DeselectAll();
      Select(moveCase.selected);
      down ? operations.MoveSelectedDown() : operations.MoveSelectedUp();
      EXPECT_EQ(ListNames(), down ? moveCase.down : moveCase.up);
      Names selected = SelectedNames();
      std::ranges::sort(selected);
      EXPECT_EQ(selected, moveCase.selected);
    }
  }
}

TEST_F(Move, EachMovedRowIsScrolledIntoView) {
  Fill({"a", "b", "c", "d"});
  Select({"a", "b"});
  operations.MoveSelectedDown();
  EXPECT_EQ(display.calls, (Calls{"scroll 3", "scroll 2"}));
  display.calls.clear();
  operations.MoveSelectedUp();
  EXPECT_EQ(display.calls, (Calls{"scroll 1", "scroll 2"}));
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Move, UpOrDownEndsSorting) {
  Fill({"b", "a"});
  operations.SetSortingOrder(1);
  Select({"a"});
  operations.MoveSelectedDown();
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(images.IsKeptSorted());
  EXPECT_EQ(ListNames(), (Names{"b", "a"}));
}

TEST_F(Move, AnEmptyListCanBeMovedUpAndDown) {
  operations.MoveSelectedUp();
  operations.MoveSelectedDown();
  EXPECT_TRUE(images.Empty());
}

using Drop = ImageListFixture;

TEST_F(Drop, MovesTheDraggedRowToTheTargetAndSelectsIt) {
  Fill({"a", "b", "c"});
  operations.Drop("a", 3);
  EXPECT_EQ(ListNames(), (Names{"b", "c", "a"}));
  EXPECT_EQ(SelectedNames(), Names{"a"});
  EXPECT_EQ(images.Current(), 3U);
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, Calls{"preview"});
}

TEST_F(Drop, IsRefusedWhileTheListIsKeptSorted) {
  Fill({"a", "b"});
  operations.SetSortingOrder(1);
  boxes.boxes.clear();
  project.IsModified = false;
  operations.Drop("a", 2);
  ExpectOneBox(env::BoxKind::Critical, env::BoxButtons::Ok, "Item cannot be moved",
               "You cannot change the order of images while the list is being kept sorted.\rPlease select 'unsorted' "
               "in the 'Sort Image List' box!");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_FALSE(project.IsModified);
}

TEST_F(Drop, OfANameThatIsNotInTheListIsIgnored) {
  Fill({"a", "b"});
  for (const char* name : {"A", "key_a", "", "c"}) operations.Drop(name, 1);
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_FALSE(project.IsModified);
  EXPECT_TRUE(display.calls.empty());
}

TEST_F(Drop, OfARowWhoseFileIsMissingChangesNothing) {
  Fill({"a", "b"});
  fs::remove(folder.Path() / "a");
  operations.Drop("a", 2);
  ExpectFileErrorBox("C:\\a");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_EQ(SelectedNames(), Names{});
}

}  // namespace
}  // namespace vantorium::core
