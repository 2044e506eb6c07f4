#include "core/generation/SlideShow.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class SlideShow : public PageTest {
 protected:
  /// Three images, two per page.
  SlideShow() {
    AddImages(3);
    SetGrid("1", "2");
    project.checkGallerySlideShow = 1;
    project.comboGallerySlideShowBeginWith = 0;
    Prepare();
  }

  std::string After(std::int32_t image) const { return generation::SlideAfter(run, image).value_or("(none)"); }
  std::string Start() const { return generation::SlideShowStart(run).value_or("(none)"); }
};

TEST_F(SlideShow, StartsFromThumbnailPagesWithTheFirstImage) {
  EXPECT_EQ(Start(), "img1.htm");
  project.checkImageWrapperUse = 0;
  EXPECT_EQ(Start(), "Images/img1.JPG");
  Prepare(generation::GenerationMode::Preview);
  EXPECT_EQ(Start(), "file:///home/anna/Photos/img1.JPG");
  project.checkImageWrapperUse = 1;
  EXPECT_EQ(Start(), "img1.htm");
}

TEST_F(SlideShow, StartsOnlyWithAllItsSettings) {
  project.checkGallerySlideShowAutoStart = 0;
  EXPECT_EQ(Start(), "(none)");
  project.checkGallerySlideShowAutoStart = 1;
  project.comboGallerySlideShowBeginWith = 1;
  EXPECT_EQ(Start(), "(none)");
  project.comboGallerySlideShowBeginWith = 0;
  project.checkGallerySlideShow = 0;
  EXPECT_EQ(Start(), "(none)");
  project.checkGallerySlideShow = 1;
  project.comboGalleryLayoutType = 3;
  EXPECT_EQ(Start(), "(none)");
}

TEST_F(SlideShow, GoesToTheNextImage) {
  for (const core::Choice startOver : std::initializer_list<core::Choice>{0, 1, 2}) {
    project.comboGallerySlideShowStartOverWith = startOver;
    EXPECT_EQ(After(1), "img2.htm");
    EXPECT_EQ(After(2), "img3.htm");
  }
}

TEST_F(SlideShow, AfterTheLastImageStartsOver) {
  project.comboGallerySlideShowStartOverWith = 0;
  EXPECT_EQ(After(3), "thumbpage_1.htm");
  project.comboGallerySlideShowStartOverWith = 1;
  EXPECT_EQ(After(3), "img1.htm");
  project.comboGallerySlideShowStartOverWith = 2;
  EXPECT_EQ(After(3), "(none)");
}

TEST_F(SlideShow, GoingBackToTheThumbnailsIgnoresHowToStartOver) {
  for (const core::Choice startOver : std::initializer_list<core::Choice>{0, 1, 2}) {
    project.comboGallerySlideShowStartOverWith = startOver;
    project.comboGallerySlideShowActionAfterImage = 1;
    EXPECT_EQ(After(1), "thumbpage_1.htm");
    EXPECT_EQ(After(2), "thumbpage_1.htm");
    EXPECT_EQ(After(3), "thumbpage_2.htm");
    project.comboGallerySlideShowActionAfterImage = 2;
    EXPECT_EQ(After(1), "thumbpage_1.htm");
    EXPECT_EQ(After(3), "thumbpage_1.htm");
  }
}

TEST_F(SlideShow, OfOneImageGoesBackToIt) {
  run.ImageCount = 1;
  EXPECT_EQ(After(1), "img1.htm");
}

TEST_F(SlideShow, RequiresItsSettingAndASingleFrame) {
  project.checkGallerySlideShow = 0;
  EXPECT_EQ(After(1), "(none)");
  project.checkGallerySlideShow = 1;
  for (core::Choice layout = 1; layout <= 4; ++layout) {
    project.comboGalleryLayoutType = layout;
    for (const core::Choice action : std::initializer_list<core::Choice>{0, 1, 2}) {
      project.comboGallerySlideShowActionAfterImage = action;
      EXPECT_EQ(After(1), "(none)") << layout << ", " << action;
    }
  }
}

TEST_F(SlideShow, GoingBackToThePageOfAnImageFailsWithoutCells) {
  SetGrid("0", "0");
  EXPECT_NO_THROW((void)After(1));
  project.comboGallerySlideShowActionAfterImage = 1;
  EXPECT_THROW((void)After(1), env::RuntimeFailure);
}

}  // namespace
}  // namespace vantorium::tests
