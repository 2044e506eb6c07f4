#include "core/generation/ProducePictures.h"
#include "tests/core/generation/RunFixture.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace vantorium::generation {
namespace {

class ProducePicturesTest : public RunFixture {
 protected:
  [[nodiscard]] std::pair<std::int32_t, std::int32_t> SizeOf(const std::string& file) const {
    std::int32_t width = 0;
    std::int32_t height = 0;
    EXPECT_TRUE(image::ReadJPEGSize(folder.Path() / file, width, height)) << file;
    return {width, height};
  }
  void SetWriteTime(const std::string& file, std::int64_t seconds) const {
    const timespec times[2] = {{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder.Path() / file).c_str(), times, 0), 0);
  }
  [[nodiscard]] bool IsShown(const std::string& text) const {
    return !host.statuses.empty() && host.statuses.back() == text;
  }
  [[nodiscard]] std::int64_t WriteTime(const std::string& file) const {
    struct stat status = {};
    EXPECT_EQ(::stat((folder.Path() / file).c_str(), &status), 0) << file;
    return status.st_mtim.tv_sec;
  }
};

using Size = std::pair<std::int32_t, std::int32_t>;

TEST_F(ProducePicturesTest, AnImageThatKeepsItsSizeIsCopiedByteForByte) {
  AddPhotograph("a");
  project.settings.checkImageWrapperImageKeepSize = 1;
  Run(OrderToCreate());
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), folder.Read("photos/a.jpg"));
}

TEST_F(ProducePicturesTest, WithoutPhysicalResizeTheFileIsCopiedAndThePageStatesTheSize) {
  AddPhotograph("a");
  project.settings.checkImageWrapperImagePhysicalResize = 0;
  Run(OrderToCreate());
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), folder.Read("photos/a.jpg"));
  EXPECT_NE(folder.Read("out/a.htm").find("HEIGHT=\"300\""), std::string::npos);
}

TEST_F(ProducePicturesTest, AResizedImageHasTheGivenHeightAndTheAspectRatioOfTheSource) {
  AddPhotograph("a", 40, 30);
  project.settings.textImageWrapperImageHeight = "15";
  Run(OrderToCreate());
  EXPECT_EQ(SizeOf("out/Images/a.jpg"), Size(20, 15));
}

TEST_F(ProducePicturesTest, AThumbnailHasTheAspectRatioOfTheResizedImageAndIsMadeFromTheSource) {
  AddPhotograph("a", 40, 30);
  auto& settings = project.settings;
  settings.checkImageWrapperImageKeepAspectRatio = 0;
  settings.textImageWrapperImageWidth = "10";
  settings.textImageWrapperImageHeight = "20";
  settings.checkThumbnailsImageKeepAspectRatio = 1;
  settings.checkThumbnailsImageSetWidth = 1;
  settings.textThumbnailsImageWidth = "8";
  Run(OrderToCreate());
  EXPECT_EQ(SizeOf("out/Thumbs/thumb_a.jpg"), Size(8, 16));
}

TEST_F(ProducePicturesTest, ImagesGetTheTimesOfTheirSourcesAndThumbnailsDoNot) {
  AddPhotograph("copied");
  SetWriteTime("photos/copied.jpg", 1'000'000'000);
  project.settings.checkImageWrapperImageKeepSize = 1;
  Run(OrderToCreate());
  EXPECT_EQ(WriteTime("out/Images/copied.jpg"), 1'000'000'000);

  project.settings.checkImageWrapperImageKeepSize = 0;
  Run(OrderToCreate());
  EXPECT_EQ(WriteTime("out/Images/copied.jpg"), 1'000'000'000) << "encoded again";
  EXPECT_NE(WriteTime("out/Thumbs/thumb_copied.jpg"), 1'000'000'000);
}

TEST_F(ProducePicturesTest, WithoutOverwriteExistingFilesStayAndTheirSizesAreRead) {
  AddPhotograph("a");
  folder.Write("out/Images/a.jpg", std::string(2048, 'o'));
  folder.Write("out/Thumbs/thumb_a.jpg", "old");
  project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), std::string(2048, 'o'));
  EXPECT_EQ(folder.Read("out/Thumbs/thumb_a.jpg"), "old");
  EXPECT_NE(folder.Read("out/a.htm").find("\r\n2KB\r\n"), std::string::npos);
}

TEST_F(ProducePicturesTest, WithoutOverwriteMissingFilesAreMade) {
  AddPhotograph("a");
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_EQ(FilesIn("out").count("Images/a.jpg"), 1U);
  EXPECT_EQ(FilesIn("out").count("Thumbs/thumb_a.jpg"), 1U);
}

TEST_F(ProducePicturesTest, WithOverwriteAnOldFileIsReplaced) {
  AddPhotograph("a");
  folder.Write("out/Images/a.jpg", "old");
  Run(OrderToCreate());
  EXPECT_NE(folder.Read("out/Images/a.jpg"), "old");
}

TEST_F(ProducePicturesTest, ARunWithoutImagesReadsTheSizesOfExistingOnes) {
  AddPhotograph("here");
  AddPhotograph("missing");
  folder.Write("out/Images/here.jpg", std::string(3000, 'x'));
  project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
  RunOrder order = OrderToCreate();
  order.CreateImages = false;
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_NE(folder.Read("out/here.htm").find("\r\n2KB\r\n"), std::string::npos);
  EXPECT_NE(folder.Read("out/missing.htm").find("\r\n0KB\r\n"), std::string::npos);
  EXPECT_EQ(std::ranges::count(host.statuses, "Getting Image File Size for \"here\"..."), 1);
}

TEST_F(ProducePicturesTest, TheSizeOfACopiedImageIsThatOfItsSource) {
  AddPhotograph("a");
  project.settings.checkImageWrapperImageKeepSize = 1;
  project.settings.ImageHeader = "<VANTORIUM_IMAGE_FILESIZE>";
  Run(OrderToCreate());
  const auto size = std::filesystem::file_size(folder.Path() / "photos/a.jpg");
  EXPECT_NE(folder.Read("out/a.htm").find("\r\n" + env::FileSizeText(size) + "\r\n"), std::string::npos);
}

TEST_F(ProducePicturesTest, AnImageThatCannotBeDecodedEndsTheRunWithItsMessage) {
  folder.Write("photos/text.jpg", "this is no picture");
  AddEntry("text", "T:\\photos\\text.jpg");
  project.settings.checkImageWrapperImageKeepAspectRatio = 0;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).title, "File Error");
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to copy the File \"T:\\photos\\text.jpg\".");
}

TEST_F(ProducePicturesTest, AFileThatIsNotAPictureIsStillCopied) {
  folder.Write("photos/text.jpg", "this is no picture");
  AddEntry("text", "T:\\photos\\text.jpg");
  project.settings.checkImageWrapperImageKeepSize = 1;
  RunOrder order = OrderToCreate();
  order.CreateThumbnails = false;
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_EQ(folder.Read("out/Images/text.jpg"), "this is no picture");
}

TEST_F(ProducePicturesTest, AThumbnailThatCannotBeDecodedEndsTheRunWithItsMessage) {
  folder.Write("photos/text.jpg", "this is no picture");
  AddEntry("text", "T:\\photos\\text.jpg");
  project.settings.checkImageWrapperImageKeepSize = 1;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).title, "File Error");
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to load JPG Image \"T:\\photos\\text.jpg\".");
}

TEST_F(ProducePicturesTest, AReadOnlyImageIsNotReplacedAndSavingFails) {
  AddPhotograph("a");
  const auto old = folder.Write("out/Images/a.jpg", "old");
  std::filesystem::permissions(old, std::filesystem::perms::owner_read);
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).title, "Failure");
  EXPECT_NE(boxes.boxes.at(0).text.find("Failed to save to JPG "), std::string::npos) << boxes.boxes.at(0).text;
  EXPECT_NE(boxes.boxes.at(0).text.find("Error #26001"), std::string::npos) << boxes.boxes.at(0).text;
  EXPECT_EQ(folder.Read("out/Images/a.jpg"), "old");
}

TEST_F(ProducePicturesTest, ASizeWithoutPixelsFailsWithAMessageThatNamesIt) {
  AddPhotograph("flat", 90, 1);
  project.settings.checkImageWrapperImageSetWidth = 1;
  project.settings.textImageWrapperImageWidth = "10";
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).title, "Failure");
  EXPECT_NE(boxes.boxes.at(0).text.find("10 x 0 pixels"), std::string::npos) << boxes.boxes.at(0).text;
}

// Effects of working ahead that must not be visible

TEST_F(ProducePicturesTest, TheFilesAreTheSameForEveryNumberOfJobs) {
  for (int i = 0; i < 12; ++i) AddPhotograph("p" + std::to_string(i), 30 + i, 50 - i);
  project.settings.ImageFilters.checkNoise = 1;
  project.settings.ThumbnailFilters.checkNoise = 1;
  Run(OrderToCreate());
  const auto names = FilesIn("out");
  std::filesystem::rename(folder.Path() / "out", folder.Path() / "first");
  for (unsigned jobs : {2U, 4U}) {
    RunEnvironment other = environment;
    other.jobs = jobs;
    EXPECT_EQ(GenerateGallery(project, OrderToCreate(), other), RunEnd::Success);
    EXPECT_EQ(FilesIn("out"), names);
    for (const auto& name : names) EXPECT_EQ(folder.Read("out/" + name), folder.Read("first/" + name)) << name;
  }
}

TEST_F(ProducePicturesTest, ASourceRemovedAfterItsImageFailsItsThumbnail) {
  AddPhotograph("a");
  AddPhotograph("b");
  loop.onTurn = [this](int) {
    if (IsShown("Creating Thumbnail for File \"b\"...")) {
      std::filesystem::remove(folder.Path() / "photos/b.jpg");
    }
  };
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to load JPG Image \"T:\\photos\\b.jpg\".");
  EXPECT_EQ(FilesIn("out"), (std::set<std::string>{"Images/a.jpg", "Images/b.jpg", "Thumbs/thumb_a.jpg"}));
}

TEST_F(ProducePicturesTest, ASourceRemovedBeforeItsImageFailsAtItsTurn) {
  for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
  loop.onTurn = [this](int) {
    if (IsShown("Copying File \"b\"...")) std::filesystem::remove(folder.Path() / "photos/b.jpg");
  };
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to copy the File \"T:\\photos\\b.jpg\".");
  EXPECT_EQ(FilesIn("out"), (std::set<std::string>{"Images/a.jpg"}));
}

TEST_F(ProducePicturesTest, ASourceRemovedBeforeItsCopyIsNamed) {
  for (const char* name : {"a", "b"}) AddPhotograph(name);
  project.settings.checkImageWrapperImageKeepSize = 1;
  loop.onTurn = [this](int) {
    if (IsShown("Copying File \"b\"...")) std::filesystem::remove(folder.Path() / "photos/b.jpg");
  };
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "File Error");
  EXPECT_EQ(boxes.boxes[0].text, "Unable to copy the File \"T:\\photos\\b.jpg\".");
  EXPECT_EQ(FilesIn("out"), (std::set<std::string>{"Images/a.jpg"}));
}

TEST_F(ProducePicturesTest, AThumbnailIsMadeFromTheSourceAsItIsAtItsTurn) {
  AddPhotograph("a", 40, 30);
  loop.onTurn = [this](int) {
    if (IsShown("Creating Thumbnail for File \"a\"...")) {
      folder.Write("photos/a.jpg", PlainJpeg(40, 30, 250));
    }
  };
  Run(OrderToCreate());
  image::cDIBSection thumbnail;
  ASSERT_TRUE(image::LoadJPEGImage(thumbnail, folder.Path() / "out/Thumbs/thumb_a.jpg"));
  EXPECT_GE(*thumbnail.Row(0), 245);
}

TEST_F(ProducePicturesTest, AnImageThatExistsAtItsTurnIsKeptEvenIfOneWasMadeAhead) {
  AddPhotograph("a");
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  loop.onTurn = [this](int) {
    if (IsShown("Creating Thumbnail for File \"a\"...")) folder.Write("out/Thumbs/thumb_a.jpg", "mine");
  };
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_EQ(folder.Read("out/Thumbs/thumb_a.jpg"), "mine");
}

}  // namespace
}  // namespace vantorium::generation
