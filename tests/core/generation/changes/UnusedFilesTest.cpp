#include "tests/core/generation/changes/ChangesFixture.h"

namespace vantorium::generation {
namespace {

class UnusedFilesTest : public ChangesFixture {
 protected:
  UnusedFilesTest() {
    for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
  }
  [[nodiscard]] static RunOrder ForIndexPage(RunOrder order, const std::string& name) {
    order.IndexFileName = name;
    return order;
  }
  void Rename(std::size_t position, const std::string& name) {
    core::ImageEntry entry = project.images.Entry(position);
    entry.ImageName = name;
    project.images.Remove(position);
    project.images.Insert(position, entry);
  }
};

TEST_F(UnusedFilesTest, UnusedFilesOfEarlierRunsAreListedAtTheEndOfEachRun) {
  Run(OnlyChanges());
  Rename(2, "new");
  for (int i = 0; i < 2; ++i) {
    Run(OnlyChanges());
    EXPECT_EQ(LastBox(),
              "Unused Files: These Files of earlier Runs are not used any more.\r\r"
              "Images/b.jpg\rThumbs/thumb_b.jpg\rb.htm");
  }
  EXPECT_TRUE(FilesIn("out").contains("b.htm"));
  ExpectLikeAFullRun();
}

TEST_F(UnusedFilesTest, UnusedFilesAreRemovedOnRequest) {
  Run(OnlyChanges());
  Rename(2, "new");
  Run(OnlyChanges());
  Run(RemovingUnused());
  EXPECT_EQ(LastBox(),
            "Unused Files: These Files of earlier Runs were not used any more and have been removed.\r\r"
            "Images/b.jpg\rThumbs/thumb_b.jpg\rb.htm");
  Run(OrderFor(GenerationMode::Create, "T:\\full\\"));
  EXPECT_EQ(FilesIn("out"), FilesIn("full"));
  boxes.boxes.clear();
  Run(RemovingUnused());
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
}

TEST_F(UnusedFilesTest, FilesOfOthersAndChangedFilesAreNeitherRemovedNorListed) {
  Run(OnlyChanges());
  folder.Write("out/mine.htm", "mine");
  folder.Write("out/Images/mine.jpg", "mine");
  const auto size = std::filesystem::file_size(folder.Path() / "out/b.htm");
  folder.Write("out/b.htm", std::string(size, 'x'));
  Rename(2, "new");
  Run(RemovingUnused());
  EXPECT_EQ(LastBox().find("mine"), std::string::npos);
  EXPECT_EQ(LastBox().find("\rb.htm"), std::string::npos);
  const auto left = FilesIn("out");
  EXPECT_TRUE(left.contains("mine.htm") && left.contains("Images/mine.jpg") && left.contains("b.htm"));
  EXPECT_FALSE(left.contains("Images/b.jpg"));
}

TEST_F(UnusedFilesTest, AnotherGalleryInTheFolderLosesNothing) {
  Run(OnlyChanges());
  const auto before = Stamps();
  for (std::size_t i = 1; i <= 3; ++i) Rename(i, "other" + std::to_string(i));
  Run(ForIndexPage(RemovingUnused(), "other.htm"));
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
  const auto after = Stamps();
  for (const auto& [name, stamp] : before) EXPECT_TRUE(after.contains(name)) << name;

  Rename(1, "new");
  Run(ForIndexPage(RemovingUnused(), "other.htm"));
  EXPECT_EQ(LastBox(),
            "Unused Files: These Files of earlier Runs were not used any more and have been removed.\r\r"
            "Images/other1.jpg\rThumbs/thumb_other1.jpg\rother1.htm");
}

TEST_F(UnusedFilesTest, AFileThatTwoGalleriesInTheFolderHaveUsedStays) {
  Run(OnlyChanges());
  Run(ForIndexPage(OnlyChanges(), "other.htm"));
  Rename(2, "new");
  for (const char* index : {"index.htm", "other.htm"}) {
    Run(ForIndexPage(RemovingUnused(), index));
    EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
  }
  EXPECT_TRUE(FilesIn("out").contains("Images/b.jpg"));
  EXPECT_TRUE(FilesIn("out").contains("b.htm"));
}

TEST_F(UnusedFilesTest, FilesThatThisRunIsToldNotToMakeAreInUse) {
  Run(OnlyChanges());
  RunOrder order = RemovingUnused();
  order.CreateImages = order.CreateThumbnails = order.CreateHTML = false;
  const auto before = FilesIn("out");
  Run(order);
  EXPECT_EQ(FilesIn("out"), before);
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
  EXPECT_EQ(Written(OnlyChanges()), std::vector<std::string>());
}

TEST_F(UnusedFilesTest, APhotographCopiedOntoItselfDoesNotBelongToTheRun) {
  project.settings.checkImageWrapperImageKeepSize = 1;
  project.settings.textImageSettingsSubFolder = "pictures";
  folder.Write("out/pictures/own.jpg", PlainJpeg(40, 30));
  AddEntry("own", "T:\\out\\pictures\\own.jpg");
  Run(OnlyChanges());
  project.images.Remove(4);
  Run(RemovingUnused());
  EXPECT_TRUE(FilesIn("out").contains("pictures/own.jpg"));
  EXPECT_FALSE(FilesIn("out").contains("own.htm"));
}

TEST_F(UnusedFilesTest, AFileOfARunThatBecameAPhotographOfTheProjectStays) {
  Run(OnlyChanges());
  core::ImageEntry entry = project.images.Entry(2);
  entry.ImageName = "new";
  entry.SourcePath = "T:\\out\\Images\\b.jpg";
  project.images.Remove(2);
  project.images.Insert(2, entry);
  Run(RemovingUnused());
  EXPECT_TRUE(FilesIn("out").contains("Images/b.jpg"));
  EXPECT_FALSE(FilesIn("out").contains("b.htm"));
}

TEST_F(UnusedFilesTest, AnotherSpellingOfTheFolderHasTheSameFiles) {
  Run(OnlyChanges());
  const auto before = FilesIn("out");
  for (const char* setting : {".\\Images", "Images\\\\", "x\\..\\Images", "Images/"}) {
    project.settings.textImageSettingsSubFolder = setting;
    RunOrder order = RemovingUnused();
    order.CreateImages = false;
    Run(order);
    for (const std::string& name : before) EXPECT_TRUE(FilesIn("out").contains(name)) << setting << " " << name;
  }
}

TEST_F(UnusedFilesTest, AFailedRunRemovesNothing) {
  Run(OnlyChanges());
  Rename(2, "new");
  std::filesystem::remove(folder.Path() / "photos/c.jpg");
  EXPECT_EQ(Run(RemovingUnused()), RunEnd::Failure);
  EXPECT_TRUE(FilesIn("out").contains("b.htm"));
}

TEST_F(UnusedFilesTest, ACancelStopsTheRemoval) {
  Run(OnlyChanges());
  Rename(2, "new");
  loop.onTurn = [this](int) {
    const std::string status = host.statuses.empty() ? "" : host.statuses.back();
    if (status != "Removing unused File \"Images/b.jpg\"...") return;
    host.openWindow->SetIsCancelled(true);
    std::ignore = cancel.CheckForCancel(*host.openWindow);
  };
  EXPECT_EQ(Run(RemovingUnused()), RunEnd::Cancelled);
  EXPECT_TRUE(FilesIn("out").contains("Images/b.jpg"));
  loop.onTurn = nullptr;
  cancel.Clear();
  host.progress.cancelled = false;
  EXPECT_EQ(Run(RemovingUnused()), RunEnd::Success);
  EXPECT_FALSE(FilesIn("out").contains("Images/b.jpg")) << "the record still has it";
}

}  // namespace
}  // namespace vantorium::generation
