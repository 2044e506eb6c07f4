#include "core/ImageListOperations.h"
#include "env/RuntimeFailure.h"
#include "tests/fakes/RecordingImageListDisplay.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedShuffle.h"
#include "tests/fakes/TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

namespace fs = std::filesystem;
using Calls = std::vector<std::string>;
using Names = std::vector<std::string>;

/// A project whose images are files on drive C:, a folder of the test's own.
class ImageListOperationsTest : public testing::Test {
 protected:
  fs::path WriteFile(const std::string& name, std::size_t size = 3) {
    return folder.Write(name, std::string(size, 'x'));
  }

  /// One image of a file of its own for each name.
  void Fill(const Names& names) {
    for (const std::string& name : names) {
      WriteFile(name);
      ASSERT_TRUE(Add(images.Count() + 1, "C:\\" + name, name));
    }
    project.IsModified = false;
  }

  bool Add(std::size_t index, const std::string& path, const std::string& name) {
    return operations.AddImage(index, path, name, false, "i " + name, "t " + name);
  }

  void Select(const Names& names) {
    for (const std::string& name : names) images.Select(images.PositionOf(name).value());
  }

  Names ListNames() const {
    Names names;
    for (std::size_t i = 1; i <= images.Count(); ++i) names.push_back(images.Entry(i).ImageName);
    return names;
  }

  Names SelectedNames() const {
    Names names;
    for (std::size_t i = 1; i <= images.Count(); ++i) {
      if (images.IsSelected(i)) names.push_back(images.Entry(i).ImageName);
    }
    return names;
  }

  void ExpectOneBox(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) {
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].kind, kind);
    EXPECT_EQ(boxes.boxes[0].buttons, buttons);
    EXPECT_EQ(boxes.boxes[0].title, title);
    EXPECT_EQ(boxes.boxes[0].text, text);
  }

  void ExpectFileErrorBox(const std::string& path) {
    ExpectOneBox(BoxKind::Critical, BoxButtons::Ok, "File Error",
                 "An Error occurred trying to read the image file \"" + path +
                     "\":\r\rFile not found\r\rLoading Process cancelled.");
  }

  fakes::TemporaryFolder folder;
  PathMap paths{{{'C', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
  fakes::RecordingMessageBox boxes;
  fakes::RecordingImageListDisplay display;
  Project project;
  ImageList& images = project.images;
  ImageListOperations operations{project, files, boxes, display};
};

using AddImage = ImageListOperationsTest;

TEST_F(AddImage, FillsEveryColumn) {
  const fs::path file = WriteFile("a.jpg", 1000);
  fs::last_write_time(file, std::chrono::file_clock::from_sys(std::chrono::sys_days{std::chrono::year{2003} / 2 / 1} +
                                                              std::chrono::hours{4} + std::chrono::minutes{5} +
                                                              std::chrono::seconds{6}));
  EXPECT_TRUE(operations.AddImage(1, "C:\\a.jpg", "name", false, "description", "thumbnail"));
  const ImageEntry& entry = images.Entry(1);
  EXPECT_EQ(entry.ImageName, "name");
  EXPECT_EQ(entry.SourcePath, "C:\\a.jpg");
  EXPECT_EQ(entry.SizeKey, "00000000000000001000");
  EXPECT_EQ(entry.DateKey, "20030201 04:05:06");
  EXPECT_EQ(entry.ImageDescription, "description");
  EXPECT_EQ(entry.ThumbnailDescription, "thumbnail");
  EXPECT_FALSE(images.IsSelected(1));
  EXPECT_FALSE(project.IsModified);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(AddImage, RemovesAFilePrefixInAnyCaseAndNothingElse) {
  WriteFile("a.jpg");
  for (const char* prefix : {"FILE://", "file://", "File://"}) {
    ASSERT_TRUE(Add(1, prefix + std::string("C:/a.jpg"), "a")) << prefix;
    EXPECT_EQ(images.Entry(1).SourcePath, "C:/a.jpg") << prefix;
  }
}

TEST_F(AddImage, NumbersADuplicateName) {
  WriteFile("a.jpg");
  for (const char* name : {"a.jpg", "a.jpg_1", "a.jpg", "a.jpg"})
    EXPECT_TRUE(Add(images.Count() + 1, "C:\\a.jpg", name));
  EXPECT_EQ(ListNames(), (Names{"a.jpg", "a.jpg_1", "a.jpg_2", "a.jpg_3"}));
}

TEST_F(AddImage, PutsTheRowAtItsIndex) {
  Fill({"a", "b"});
  EXPECT_TRUE(Add(2, "C:\\a", "x"));
  EXPECT_EQ(ListNames(), (Names{"a", "x", "b"}));
}

TEST_F(AddImage, PutsTheRowInItsPlaceWhileTheListIsKeptSorted) {
  Fill({"b", "d"});
  operations.SetSortingOrder(1);
  EXPECT_TRUE(Add(1, "C:\\b", "c"));
  EXPECT_EQ(ListNames(), (Names{"b", "c", "d"}));
}

TEST_F(AddImage, RefusesAnIndexOutsideTheListAndAddsNothing) {
  Fill({"a"});
  for (const std::size_t index : {0U, 3U}) {
    try {
      std::ignore = Add(index, "C:\\a", "x");
      ADD_FAILURE() << index;
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(FailureKind::IndexOutOfBounds));
    }
  }
  EXPECT_EQ(ListNames(), Names{"a"});
}

TEST_F(AddImage, TellsOfAFileThatCannotBeReadAndAddsNothing) {
  Fill({"a"});
  EXPECT_FALSE(Add(1, "C:\\missing.jpg", "x"));
  ExpectFileErrorBox("C:\\missing.jpg");
  EXPECT_EQ(display.calls, Calls{"reset"});
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_FALSE(project.IsModified);
}

TEST_F(AddImage, TellsOfDrivesAndSharesThatDoNotExist) {
  for (const char* path : {"Q:\\a.jpg", "\\\\server\\share\\a.jpg"}) {
    boxes.boxes.clear();
    EXPECT_FALSE(Add(1, path, "x"));
    ExpectFileErrorBox(path);
  }
  boxes.boxes.clear();
  EXPECT_FALSE(Add(1, "file://Q:/a.jpg", "x"));
  ExpectFileErrorBox("Q:/a.jpg");
}

TEST_F(ImageListOperationsTest, AddFilesAppendsEachUnderItsFileName) {
  Fill({"a.jpg"});
  WriteFile("sub/a.jpg");
  WriteFile("sub/b.jpg");
  EXPECT_TRUE(operations.AddFiles({"C:\\sub\\b.jpg", "C:/sub/a.jpg"}));
  EXPECT_EQ(ListNames(), (Names{"a.jpg", "b.jpg", "a.jpg_1"}));
  EXPECT_EQ(images.Entry(2).ImageDescription, "");
  EXPECT_EQ(images.Entry(2).ThumbnailDescription, "");
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"preview", "counts"}));
}

TEST_F(ImageListOperationsTest, AddFilesEndsAtTheFirstFileThatCannotBeRead) {
  WriteFile("a.jpg");
  EXPECT_FALSE(operations.AddFiles({"C:\\a.jpg", "C:\\missing.jpg", "C:\\a.jpg"}));
  EXPECT_EQ(ListNames(), Names{"a.jpg"});
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(ImageListOperationsTest, AddFilesThatAddsNothingModifiesNothing) {
  EXPECT_TRUE(operations.AddFiles({}));
  EXPECT_FALSE(operations.AddFiles({"C:\\missing.jpg"}));
  EXPECT_FALSE(project.IsModified);
}

using Remove = ImageListOperationsTest;

TEST_F(Remove, SelectedRowsGoAndTheRowAtTheFirstOfThemBecomesCurrent) {
  Fill({"a", "b", "c", "d", "e"});
  Select({"b", "d"});
  images.SetCurrent(5);
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), (Names{"a", "c", "e"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"wait", "reset", "preview", "counts"}));
  EXPECT_TRUE(boxes.boxes.empty()) << "no question is asked";
}

TEST_F(Remove, SelectedRowsAtTheEndMakeTheRowBeforeCurrent) {
  Fill({"a", "b", "c"});
  Select({"b", "c"});
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_EQ(images.Current(), 1U);
}

TEST_F(Remove, AllRowsSelectedLeaveNoCurrentRow) {
  Fill({"a", "b"});
  Select({"a", "b"});
  images.SetCurrent(1);
  operations.RemoveSelected();
  EXPECT_TRUE(images.Empty());
  EXPECT_EQ(images.Current(), 0U);
}

TEST_F(Remove, NothingSelectedOnlyRefreshes) {
  Fill({"a", "b"});
  images.SetCurrent(2);
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_FALSE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"wait", "reset", "preview", "counts"}));
}

TEST_F(Remove, AllAsksFirst) {
  Fill({"a", "b"});
  operations.RemoveAll();
  ExpectOneBox(BoxKind::Question, BoxButtons::YesNo, "Remove all Images",
               "Are you sure you wish to remove all image entries from the gallery?");
  EXPECT_TRUE(images.Empty());
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"preview", "counts"}));
}

TEST_F(Remove, AllKeepsTheListOnNo) {
  Fill({"a", "b"});
  boxes.answers = {BoxAnswer::No};
  operations.RemoveAll();
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_FALSE(project.IsModified);
  EXPECT_TRUE(display.calls.empty());
}

TEST_F(Remove, AllAsksNothingOfAnEmptyList) {
  operations.RemoveAll();
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(Remove, ACorruptedRowIsFollowedByTheRowAtItsPlace) {
  Fill({"a", "b", "c"});
  images.SetCurrent(2);
  images.Select(2);
  operations.RemoveCorrupted();
  EXPECT_EQ(ListNames(), (Names{"a", "c"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(SelectedNames(), Names{"c"});
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"preview", "counts"}));
}

TEST_F(Remove, ACorruptedLastRowIsFollowedByTheOneBefore) {
  Fill({"a", "b"});
  images.SetCurrent(2);
  operations.RemoveCorrupted();
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(SelectedNames(), Names{"a"});
}

TEST_F(Remove, TheOnlyRowCorruptedLeavesNone) {
  Fill({"a"});
  images.SetCurrent(1);
  operations.RemoveCorrupted();
  EXPECT_TRUE(images.Empty());
  EXPECT_EQ(images.Current(), 0U);
}

TEST_F(Remove, WithoutACurrentRowNothingIsCorrupted) {
  Fill({"a"});
  operations.RemoveCorrupted();
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_FALSE(project.IsModified);
}

using Move = ImageListOperationsTest;

TEST_F(Move, AnEntryKeepsItsTextsAndReadsItsKeysAgain) {
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

TEST_F(Move, AnEntryWhoseFileHasGoneIsNotLost) {
  Fill({"a", "b"});
  fs::remove(folder.Path() / "a");
  EXPECT_FALSE(operations.MoveEntry(1, 2));
  ExpectFileErrorBox("C:\\a");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
}

TEST_F(Move, IndexesOutsideTheListAreRefused) {
  Fill({"a", "b"});
  EXPECT_THROW(operations.MoveEntry(0, 1), RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(3, 1), RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(1, 0), RuntimeFailure);
  EXPECT_THROW(operations.MoveEntry(1, 3), RuntimeFailure);
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
}

struct MoveCase {
  Names selected;
  Names down;
  Names up;
};

TEST_F(Move, SelectedRowsGoOneDownOrUpAndStaySelected) {
  const MoveCase cases[] = {
      {{}, {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
      {{"b"}, {"a", "c", "b", "d"}, {"b", "a", "c", "d"}},
      {{"b", "c"}, {"a", "d", "b", "c"}, {"b", "c", "a", "d"}},
      {{"a"}, {"b", "a", "c", "d"}, {"a", "b", "c", "d"}},
      {{"a", "c"}, {"b", "a", "d", "c"}, {"a", "b", "c", "d"}},  // the first row ends the walk up
      {{"d"}, {"a", "b", "c", "d"}, {"a", "b", "d", "c"}},
      {{"b", "d"}, {"a", "b", "c", "d"}, {"b", "a", "d", "c"}},  // the last row ends the walk down
      {{"a", "b", "c", "d"}, {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
  };
  const Names start = {"a", "b", "c", "d"};
  Fill(start);
  for (const MoveCase& moveCase : cases) {
    for (const bool down : {true, false}) {
      SCOPED_TRACE(testing::Message() << testing::PrintToString(moveCase.selected) << (down ? " down" : " up"));
      images.RenameAll("free");  // so that the names below are there to be given
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

TEST_F(Move, UpOrDownEndsTheKeptOrder) {
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

using Drop = ImageListOperationsTest;

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
  ExpectOneBox(BoxKind::Critical, BoxButtons::Ok, "Item cannot be moved",
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

TEST_F(Drop, OfARowWhoseFileHasGoneLeavesTheListAsItWas) {
  Fill({"a", "b"});
  fs::remove(folder.Path() / "a");
  operations.Drop("a", 2);
  ExpectFileErrorBox("C:\\a");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_EQ(SelectedNames(), Names{});
}

using Sorting = ImageListOperationsTest;

TEST_F(Sorting, AsksBeforeAnOrderOfTheUsersOwnIsLost) {
  Fill({"b", "a"});
  operations.SetSortingOrder(1);
  ExpectOneBox(BoxKind::Question, BoxButtons::YesNo, "Change Sorting Order",
               "Are you sure you wish to change the Sorting Order for the Images in this Gallery?");
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 1);
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Sorting, NoLeavesTheOrderAndTheListUnsorted) {
  Fill({"b", "a"});
  boxes.answers = {BoxAnswer::No};
  operations.SetSortingOrder(4);
  EXPECT_EQ(ListNames(), (Names{"b", "a"}));
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(images.IsKeptSorted());
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Sorting, AsksNothingOfAnEmptyOrASortedListNorForUnsorted) {
  operations.SetSortingOrder(1);
  Fill({"b", "a"});
  operations.SetSortingOrder(2);
  operations.SetSortingOrder(0);
  operations.SetSortingOrder(0);
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(ListNames(), (Names{"b", "a"}));
}

TEST_F(Sorting, UnsortedDoesNotBringAnEarlierOrderBack) {
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
    EXPECT_THROW(operations.SetSortingOrder(index), RuntimeFailure) << index;
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

using ShuffleOperation = ImageListOperationsTest;

TEST_F(ShuffleOperation, AsksNothingOfFewerThanTwoRows) {
  fakes::ScriptedShuffle script({0.0});
  operations.Shuffle(script.Tools());
  Fill({"a"});
  operations.Shuffle(script.Tools());
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_TRUE(script.calls.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ShuffleOperation, AsksAndShufflesAndEndsAtTheFirstRow) {
  Fill({"a", "b", "c"});
  Select({"b"});
  images.SetCurrent(3);
  fakes::ScriptedShuffle script({0.0, 0.99});
  operations.Shuffle(script.Tools());
  ExpectOneBox(BoxKind::Question, BoxButtons::YesNo, "Shuffle Images", "Are you sure you wish to shuffle the Images?");
  EXPECT_EQ(script.calls, (Calls{"open", "seed", "close"}));
  EXPECT_EQ(script.percents.size(), 6U);
  EXPECT_EQ(display.calls, (Calls{"wait", "preview", "reset"}));
  EXPECT_EQ(SelectedNames(), Names{});
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_TRUE(project.IsModified);
}

TEST_F(ShuffleOperation, ChangesNothingOnNo) {
  Fill({"a", "b"});
  boxes.answers = {BoxAnswer::No};
  fakes::ScriptedShuffle script({0.0, 0.99});
  operations.Shuffle(script.Tools());
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_TRUE(script.calls.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ShuffleOperation, EndsTheKeptOrder) {
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
  EXPECT_EQ(SelectedNames(), Names{"7"});
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(script.calls, (Calls{"open", "seed", "close"}));
  EXPECT_EQ(display.calls, (Calls{"wait", "preview", "reset"}));
}

using Find = ImageListOperationsTest;

TEST_F(Find, AHitIsScrolledIntoViewSelectedAndPreviewed) {
  Fill({"a", "Photo_1", "b"});
  operations.FindByName("photo_1");
  EXPECT_EQ(SelectedNames(), Names{"Photo_1"});
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(display.calls, (Calls{"scroll 2", "preview"}));
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(Find, NoHitIsSaid) {
  Fill({"photo_1"});
  operations.FindByName("photo");
  ExpectOneBox(BoxKind::Critical, BoxButtons::Ok, "Image not found",
               "This Gallery does not contain an Image named \"photo\".");
  EXPECT_EQ(images.Current(), 0U);
  EXPECT_TRUE(display.calls.empty());
}

TEST_F(Find, AnEmptyTextOrListFindsNothingAndSaysNothing) {
  operations.FindByName("a");
  Fill({"a"});
  operations.FindByName("");
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_TRUE(display.calls.empty());
}

using Rename = ImageListOperationsTest;

TEST_F(Rename, GivesTheCurrentRowTheBase) {
  Fill({"a", "b", "c"});
  images.SetCurrent(2);
  images.Select(3);
  operations.Rename("c", RenameScope::CurrentImage);
  EXPECT_EQ(ListNames(), (Names{"a", "c_1", "c"}));
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Rename, NumbersAllRowsInListOrder) {
  Fill({"a", "b", "trip"});
  operations.Rename("trip", RenameScope::AllImages);
  EXPECT_EQ(ListNames(), (Names{"trip", "trip_1", "trip_2"}));
  EXPECT_TRUE(project.IsModified);
}

TEST_F(Rename, ACancelledDialogAndAnEmptyBaseChangeNothing) {
  Fill({"a", "b"});
  images.SetCurrent(1);
  for (const char* base : {"?&null&?", ""}) {
    operations.Rename(base, RenameScope::AllImages);
    operations.Rename(base, RenameScope::CurrentImage);
  }
  EXPECT_EQ(ListNames(), (Names{"a", "b"}));
  EXPECT_FALSE(project.IsModified);
}

TEST_F(Rename, WithoutACurrentRowNothingIsRenamed) {
  Fill({"a"});
  operations.Rename("b", RenameScope::CurrentImage);
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_FALSE(project.IsModified);
}

}  // namespace
}  // namespace vantorium
