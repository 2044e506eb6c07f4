#include "core/generation/OutputNaming.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

using OutputNaming = PageTest;

TEST_F(OutputNaming, AFileNameIsTheListTextWithTheExtensionOfTheSource) {
  EXPECT_EQ(generation::BuildFileName("Sunset", "C:\\Photos\\IMG_1.JPG"), "Sunset.JPG");
  EXPECT_EQ(generation::BuildFileName("a.b", "C:\\Photos\\x.y.jpeg"), "a.b.jpeg");
  EXPECT_EQ(generation::BuildFileName("Sunset", "C:\\Photos\\IMG_1"), "Sunset");
  EXPECT_EQ(generation::BuildFileName("", "x.jpg"), ".jpg");
}

TEST_F(OutputNaming, PagesAreNumberedWithoutPadding) {
  EXPECT_EQ(generation::ThumbnailPageName(project, 1), "thumbpage_1.htm");
  EXPECT_EQ(generation::ThumbnailPageName(project, 100'000), "thumbpage_100000.htm");
  project.textThumbnailPageSettingsFilePrefix = "";
  EXPECT_EQ(generation::ThumbnailPageName(project, 2), "2.htm");
}

TEST_F(OutputNaming, WrapperPagesAndThumbnailsAreNamedAfterTheirImage) {
  AddImage("Sunset");
  EXPECT_EQ(generation::WrapperPageName(project, "Sunset"), "Sunset.htm");
  EXPECT_EQ(generation::ThumbnailFileName(project, run.Info(1)), "thumb_Sunset.JPG");
}

TEST_F(OutputNaming, AFolderInAnAddressHasSlashesAndATrailingOne) {
  EXPECT_EQ(generation::UrlFolder("Images"), "Images/");
  EXPECT_EQ(generation::UrlFolder("Images\\Big"), "Images/Big/");
  EXPECT_EQ(generation::UrlFolder("Images\\"), "Images/");
  EXPECT_EQ(generation::UrlFolder("Images/"), "Images/");
  EXPECT_EQ(generation::UrlFolder(""), "/");
}

TEST_F(OutputNaming, AnImageIsInItsFolderAndInAPreviewAtItsSource) {
  AddImage("Sunset");
  Prepare();
  EXPECT_EQ(generation::ImageUrl(run, 1), "Images/Sunset.JPG");
  EXPECT_EQ(generation::ImageTarget(run, 1), "Sunset.htm");
  project.checkImageWrapperUse = 0;
  EXPECT_EQ(generation::ImageTarget(run, 1), "Images/Sunset.JPG");
  Prepare(generation::GenerationMode::Preview);
  EXPECT_EQ(generation::ImageUrl(run, 1), "file:///home/anna/Photos/Sunset.JPG");
  EXPECT_EQ(generation::ImageTarget(run, 1), "file:///home/anna/Photos/Sunset.JPG");
}

TEST_F(OutputNaming, ASourceOnAnUnmappedDriveKeepsItsTextWithSlashes) {
  AddImage("Sunset");
  run.RunInfo[0].Path = "Q:\\a b\\x.jpg";
  EXPECT_EQ(generation::SourceUrl(run, 1), "file://Q:/a b/x.jpg");
}

}  // namespace
}  // namespace vantorium::tests
