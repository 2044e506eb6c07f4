#include "tests/core/generation/changes/ChangesFixture.h"

#include <array>

#include <fcntl.h>
#include <sys/stat.h>

namespace vantorium::generation {
namespace {

using Names = std::vector<std::string>;

class ChangesTest : public ChangesFixture {
 protected:
  ChangesTest() {
    project.settings.comboImageDescriptionPlacement = core::NumberOf(core::Placement::Below);
    for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
    folder.Write("project/back.gif", "GIF");
    project.settings.textThumbnailsPageBackdrop = "back.gif";
  }
  void SetWriteTime(const std::filesystem::path& file, const timespec& time) const {
    const std::array<timespec, 2> times = {time, time};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times.data(), 0), 0);
  }
  [[nodiscard]] timespec WriteTime(const std::filesystem::path& file) const {
    struct stat status = {};
    EXPECT_EQ(::stat(file.c_str(), &status), 0);
    return status.st_mtim;
  }
};

TEST_F(ChangesTest, ASecondRunWritesNothing) {
  EXPECT_EQ(Written(OnlyChanges()).size(), 12U);
  EXPECT_EQ(Written(OnlyChanges()), Names());
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, PlainCopiesAreKeptToo) {
  project.settings.checkImageWrapperImageKeepSize = 1;
  Run(OnlyChanges());
  EXPECT_EQ(Written(OnlyChanges()), Names());
}

TEST_F(ChangesTest, AChangedCaptionWritesOnlyItsPages) {
  Run(OnlyChanges());
  core::ImageEntry entry = project.images.Entry(2);
  entry.ImageDescription = "A new description.";
  project.images.Remove(2);
  project.images.Insert(2, entry);
  EXPECT_EQ(Written(OnlyChanges()), Names{"b.htm"});
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, AnImageFilterMakesOnlyTheImagesAgain) {
  Run(OnlyChanges());
  project.settings.ImageFilters.checkGrayscale = 1;
  EXPECT_EQ(Written(OnlyChanges()), (Names{"Images/a.jpg", "Images/b.jpg", "Images/c.jpg"}));
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, ANewOrderMakesPicturesAgainOnlyIfTheyHaveNoise) {
  project.settings.ImageFilters.checkNoise = 1;
  Run(OnlyChanges());
  const core::ImageEntry first = project.images.Entry(1);
  project.images.Remove(1);
  project.images.Insert(2, first);
  const Names written = Written(OnlyChanges());
  EXPECT_TRUE(std::ranges::count(written, "Images/a.jpg") == 1 && std::ranges::count(written, "Images/b.jpg") == 1);
  EXPECT_EQ(std::ranges::count(written, "Images/c.jpg") + std::ranges::count(written, "Thumbs/thumb_a.jpg"), 0);
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, AWatermarkInAnotherFontMakesThePictureAgain) {
  project.settings.ImageWatermark.checkUseWatermark = 1;
  project.settings.ImageWatermark.textWatermark = "mine";
  Run(OnlyChanges());
  EXPECT_EQ(Written(OnlyChanges()), Names());
  project.settings.ImageWatermark.FontSize = 20;
  EXPECT_EQ(Written(OnlyChanges()).size(), 3U);
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, AReplacedSourceIsNoticedEvenWithTheSameSizeAndWriteTime) {
  Run(OnlyChanges());
  const auto source = folder.Path() / "photos/b.jpg";
  const timespec time = WriteTime(source);
  const std::string bytes = folder.Read("photos/b.jpg");
  std::string other = PlainJpeg(40, 30, 240);
  ASSERT_LE(other.size(), bytes.size() + 40);
  other.resize(bytes.size(), '\0');
  folder.Write("photos/b.jpg", other);
  SetWriteTime(source, time);
  EXPECT_EQ(Written(OnlyChanges()), (Names{"Images/b.jpg", "Thumbs/thumb_b.jpg"}));
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, FilesThatAreMissingOrChangedInTheTargetAreMadeAgain) {
  Run(OnlyChanges());
  const auto out = folder.Path() / "out";
  std::filesystem::remove(out / "Images/a.jpg");
  std::filesystem::remove(out / "index.htm");
  const timespec time = WriteTime(out / "Thumbs/thumb_b.jpg");
  folder.Write("out/Thumbs/thumb_b.jpg", std::string(std::filesystem::file_size(out / "Thumbs/thumb_b.jpg"), 'x'));
  SetWriteTime(out / "Thumbs/thumb_b.jpg", time);
  folder.Write("out/c.htm", std::string(std::filesystem::file_size(out / "c.htm"), 'x'));
  folder.Write("out/Images/_backdrop_thumbpage.gif", "FIG");
  EXPECT_EQ(Written(OnlyChanges()),
            (Names{"Images/_backdrop_thumbpage.gif", "Images/a.jpg", "Thumbs/thumb_b.jpg", "c.htm", "index.htm"}));
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, PagesStateTheFileSizesOfKeptFiles) {
  for (const std::int16_t keepSize : {core::kOff, core::kOn}) {
    project.settings.checkImageWrapperImageKeepSize = keepSize;
    project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
    Run(OnlyChanges());
    EXPECT_EQ(Written(OnlyChanges()), Names());
    ExpectLikeAFullRun();
  }
}

TEST_F(ChangesTest, WithoutOnlyChangesNoRecordIsReadOrWritten) {
  Run(OrderToCreate());
  EXPECT_TRUE(Records().empty());
  Run(OnlyChanges());
  ASSERT_EQ(Records().size(), 1U);
  const auto record = StampOf(Records().front());
  EXPECT_EQ(Written(OrderToCreate()).size(), 12U);
  EXPECT_EQ(StampOf(Records().front()), record);
}

TEST_F(ChangesTest, AFullRunInvalidatesTheRecord) {
  Run(OnlyChanges());
  project.settings.ImageFilters.checkGrayscale = 1;
  Run(OrderToCreate());
  project.settings.ImageFilters.checkGrayscale = 0;
  EXPECT_EQ(Written(OnlyChanges()).size(), 12U);
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, WithADamagedRecordAllIsMadeAgain) {
  Run(OnlyChanges());
  for (const std::string& damaged : {std::string(), std::string(100000, '\0'), std::string("end \n")}) {
    std::ofstream(Records().front(), std::ios::binary) << damaged;
    EXPECT_EQ(Written(OnlyChanges()).size(), 12U);
    EXPECT_EQ(Written(OnlyChanges()), Names());
  }
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
}

TEST_F(ChangesTest, WithoutACacheFolderAllIsMadeAgain) {
  folder.Write("file", "");
  environment.cacheFolder = folder.Path() / "file/cache";
  Run(OnlyChanges());
  EXPECT_EQ(Written(OnlyChanges()).size(), 12U);
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
}

TEST_F(ChangesTest, EachFolderHasOneRecordWhicheverPathLeadsThere) {
  Run(OnlyChanges());
  Run(OnlyChanges("T:\\other\\"));
  EXPECT_EQ(Records().size(), 2U);
  std::filesystem::create_directory_symlink(folder.Path() / "out", folder.Path() / "link");
  EXPECT_EQ(Written(OnlyChanges("T:\\link\\")), Names());
  EXPECT_EQ(Written(OnlyChanges("T:\\photos\\..\\out\\")), Names());
  EXPECT_EQ(Records().size(), 2U);
}

TEST_F(ChangesTest, AFailedRunRecordsTheFilesItMade) {
  folder.Write("photos/c.jpg", "no photograph");
  EXPECT_EQ(Run(OnlyChanges()), RunEnd::Failure);
  folder.Write("photos/c.jpg", PlainJpeg(40, 30));
  const Names written = Written(OnlyChanges());
  EXPECT_EQ(std::ranges::count(written, "Images/a.jpg") + std::ranges::count(written, "Images/b.jpg"), 0);
  ExpectLikeAFullRun();
}

TEST_F(ChangesTest, AMissingSourceFailsAsInAFullRun) {
  Run(OnlyChanges());
  std::filesystem::remove(folder.Path() / "photos/b.jpg");
  EXPECT_EQ(Run(OnlyChanges()), RunEnd::Failure);
  EXPECT_EQ(LastBox(), "File Error: Unable to copy the File \"T:\\photos\\b.jpg\".");
}

TEST_F(ChangesTest, WithoutOverwriteExistingPicturesStayWhateverTheRecord) {
  Run(OnlyChanges());
  folder.Write("out/Images/a.jpg", "mine");
  std::filesystem::remove(folder.Path() / "out/Images/b.jpg");
  RunOrder order = OnlyChanges();
  order.Overwrite = false;
  EXPECT_EQ(Written(order), Names{"Images/b.jpg"});
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), "mine");
}

TEST_F(ChangesTest, TheResultDoesNotDependOnTheNumberOfJobs) {
  for (unsigned jobs : {1U, 3U}) {
    environment.jobs = jobs;
    folder.Write("photos/b.jpg", PlainJpeg(40, 30, static_cast<std::uint8_t>(jobs)));
    Run(OnlyChanges());
    EXPECT_EQ(Written(OnlyChanges()), Names());
    ExpectLikeAFullRun();
  }
}

}  // namespace
}  // namespace vantorium::generation
