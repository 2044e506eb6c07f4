#include "env/RuntimeFailure.h"
#include "tests/core/ImageListFixture.h"

#include <chrono>
#include <tuple>

namespace vantorium::core {
namespace {

namespace fs = std::filesystem;

using AddImage = ImageListFixture;

TEST_F(AddImage, FillsEveryColumn) {
  const fs::path file = WriteFile("a.jpg", 1000);
  fs::last_write_time(file, std::chrono::file_clock::from_sys(std::chrono::sys_days{std::chrono::year{2003} / 2 / 1} +
                                                              std::chrono::hours{4} + std::chrono::minutes{5} +
                                                              std::chrono::seconds{6}));
  EXPECT_TRUE(operations.AddImage(1, "C:\\a.jpg", "name", "description", "thumbnail"));
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

TEST_F(AddImage, InsertsTheRowAtItsIndex) {
  Fill({"a", "b"});
  EXPECT_TRUE(Add(2, "C:\\a", "x"));
  EXPECT_EQ(ListNames(), (Names{"a", "x", "b"}));
}

TEST_F(AddImage, InsertsTheRowInOrderWhileTheListIsKeptSorted) {
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
    } catch (const env::RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(env::FailureKind::IndexOutOfBounds));
    }
  }
  EXPECT_EQ(ListNames(), Names{"a"});
}

TEST_F(AddImage, ReportsAnUnreadableFileAndAddsNothing) {
  Fill({"a"});
  EXPECT_FALSE(Add(1, "C:\\missing.jpg", "x"));
  ExpectFileErrorBox("C:\\missing.jpg");
  EXPECT_EQ(display.calls, Calls{"reset"});
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_FALSE(project.IsModified);
}

TEST_F(AddImage, ReportsDrivesAndSharesThatDoNotExist) {
  for (const char* path : {"Q:\\a.jpg", "\\\\server\\share\\a.jpg"}) {
    boxes.boxes.clear();
    EXPECT_FALSE(Add(1, path, "x"));
    ExpectFileErrorBox(path);
  }
  boxes.boxes.clear();
  EXPECT_FALSE(Add(1, "file://Q:/a.jpg", "x"));
  ExpectFileErrorBox("Q:/a.jpg");
}

using AddFiles = ImageListFixture;

TEST_F(AddFiles, AppendsEachUnderItsFileName) {
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

TEST_F(AddFiles, StopsAtTheFirstUnreadableFile) {
  WriteFile("a.jpg");
  EXPECT_FALSE(operations.AddFiles({"C:\\a.jpg", "C:\\missing.jpg", "C:\\a.jpg"}));
  EXPECT_EQ(ListNames(), Names{"a.jpg"});
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(AddFiles, SelectsTheFirstFileAndMakesItCurrentIfNoRowIsCurrent) {
  for (const char* name : {"b.jpg", "c.jpg", "a.jpg"}) WriteFile(name);
  Fill({"before"});
  EXPECT_TRUE(operations.AddFiles({"C:\\b.jpg", "C:\\c.jpg"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(SelectedNames(), Names{"b.jpg"});
  EXPECT_TRUE(operations.AddFiles({"C:\\a.jpg"}));
  EXPECT_EQ(images.Current(), 2U) << "the current row stays current";
  EXPECT_EQ(SelectedNames(), Names{"b.jpg"});
}

TEST_F(AddFiles, MakesItsFirstFileCurrentWhereverItIsSorted) {
  for (const char* name : {"b.jpg", "c.jpg", "a.jpg"}) WriteFile(name);
  operations.SetSortingOrder(1);
  EXPECT_TRUE(operations.AddFiles({"C:\\b.jpg", "C:\\a.jpg", "C:\\c.jpg"}));
  EXPECT_EQ(ListNames(), (Names{"a.jpg", "b.jpg", "c.jpg"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(SelectedNames(), Names{"b.jpg"});
}

TEST_F(AddFiles, OneUnreadableFileIsReportedAndNothingIsSelected) {
  Fill({"a"});
  EXPECT_FALSE(operations.AddFile("C:\\missing.jpg"));
  ExpectFileErrorBox("C:\\missing.jpg");
  EXPECT_EQ(images.Current(), 0U);
  EXPECT_TRUE(SelectedNames().empty());
}

TEST_F(AddFiles, TheFirstRowIsSelectedIfNoneIsCurrent) {
  operations.SelectFirstIfNoneIsCurrent();
  EXPECT_EQ(images.Current(), 0U) << "the list is empty";
  Fill({"a", "b"});
  operations.SelectFirstIfNoneIsCurrent();
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(SelectedNames(), Names{"a"});
  images.SetCurrent(2);
  operations.SelectFirstIfNoneIsCurrent();
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_FALSE(project.IsModified);
}

TEST_F(AddFiles, AddingNothingDoesNotModifyTheProject) {
  EXPECT_TRUE(operations.AddFiles({}));
  EXPECT_FALSE(operations.AddFiles({"C:\\missing.jpg"}));
  EXPECT_FALSE(project.IsModified);
}

using Remove = ImageListFixture;

TEST_F(Remove, TheRowAtTheFirstRemovedPositionBecomesCurrentAndSelected) {
  Fill({"a", "b", "c", "d", "e"});
  Select({"b", "d"});
  images.SetCurrent(5);
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), (Names{"a", "c", "e"}));
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(SelectedNames(), Names{"c"});
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"wait", "reset", "preview", "counts"}));
  EXPECT_TRUE(boxes.boxes.empty()) << "nothing is asked";
}

TEST_F(Remove, AfterSelectedRowsAtTheEndTheRowBeforeBecomesCurrentAndSelected) {
  Fill({"a", "b", "c"});
  Select({"b", "c"});
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(SelectedNames(), Names{"a"});
}

TEST_F(Remove, RemovingAllRowsLeavesNoCurrentRow) {
  Fill({"a", "b"});
  Select({"a", "b"});
  images.SetCurrent(1);
  operations.RemoveSelected();
  EXPECT_TRUE(images.Empty());
  EXPECT_EQ(images.Current(), 0U);
}

TEST_F(Remove, RowsAreRemovedOneByOneWithoutSelecting) {
  Fill({"a", "b", "c"});
  Select({"b"});
  for (const Names& left : {Names{"a", "c"}, Names{"a"}, Names{}}) {
    operations.RemoveSelected();
    EXPECT_EQ(ListNames(), left);
  }
}

TEST_F(Remove, WithoutASelectionOnlyRefreshes) {
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
  ExpectOneBox(env::BoxKind::Question, env::BoxButtons::YesNo, "Remove all Images",
               "Are you sure you wish to remove all image entries from the gallery?");
  EXPECT_TRUE(images.Empty());
  EXPECT_TRUE(project.IsModified);
  EXPECT_EQ(display.calls, (Calls{"preview", "counts"}));
}

TEST_F(Remove, AllKeepsTheListOnNo) {
  Fill({"a", "b"});
  boxes.answers = {env::BoxAnswer::No};
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

TEST_F(Remove, AfterACorruptedRowTheNextRowBecomesCurrent) {
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

TEST_F(Remove, AfterACorruptedLastRowTheRowBeforeBecomesCurrent) {
  Fill({"a", "b"});
  images.SetCurrent(2);
  operations.RemoveCorrupted();
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(SelectedNames(), Names{"a"});
}

TEST_F(Remove, AfterTheOnlyRowNoRowIsCurrent) {
  Fill({"a"});
  images.SetCurrent(1);
  operations.RemoveCorrupted();
  EXPECT_TRUE(images.Empty());
  EXPECT_EQ(images.Current(), 0U);
}

TEST_F(Remove, WithoutACurrentRowNoCorruptedRowIsRemoved) {
  Fill({"a"});
  operations.RemoveCorrupted();
  EXPECT_EQ(ListNames(), Names{"a"});
  EXPECT_FALSE(project.IsModified);
}

using Find = ImageListFixture;

TEST_F(Find, AHitIsScrolledIntoViewSelectedAndPreviewed) {
  Fill({"a", "Photo_1", "b"});
  operations.FindByName("photo_1");
  EXPECT_EQ(SelectedNames(), Names{"Photo_1"});
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(display.calls, (Calls{"scroll 2", "preview"}));
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(Find, AHitIsTheOnlySelectedRow) {
  Fill({"a.jpg", "Aqua.jpg", "b.jpg"});
  Select({"a.jpg", "b.jpg"});
  images.SetCurrent(3);
  operations.FindByName("aqua");
  EXPECT_EQ(SelectedNames(), Names{"Aqua.jpg"});
  operations.RemoveSelected();
  EXPECT_EQ(ListNames(), (Names{"a.jpg", "b.jpg"})) << "only the row that was found is removed";
}

TEST_F(Find, WithoutAHitSaysSo) {
  Fill({"photo1", "a"});
  Select({"a"});
  operations.FindByName("photo");
  ExpectOneBox(env::BoxKind::Critical, env::BoxButtons::Ok, "Image not found",
               "This Gallery does not contain an Image named \"photo\".");
  EXPECT_EQ(images.Current(), 0U);
  EXPECT_EQ(SelectedNames(), Names{"a"});
  EXPECT_TRUE(display.calls.empty());
}

TEST_F(Find, AnEmptyTextOrListFindsNothingSilently) {
  operations.FindByName("a");
  Fill({"a"});
  operations.FindByName("");
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_TRUE(display.calls.empty());
}

using Rename = ImageListFixture;

TEST_F(Rename, GivesTheCurrentRowTheNewName) {
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

TEST_F(Rename, ACancelledDialogOrAnEmptyNameChangesNothing) {
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
}  // namespace vantorium::core
