#include "core/generation/PictureRecipes.h"
#include "image/JPEG.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

class PictureRecipesTest : public RunFixture {
 protected:
  PictureRecipesTest() {
    AddPhotograph("a", 120, 90);
    project.settings.checkImageWrapperImageKeepSize = 1;
  }

  /// The maximum green value in a picture of the gallery.
  [[nodiscard]] int Brightest(const std::string& name) const {
    image::cDIBSection picture;
    EXPECT_TRUE(image::LoadJPEGImage(picture, folder.Path() / "out" / name)) << name;
    int brightest = 0;
    for (std::int32_t y = 0; y < picture.height(); ++y) {
      for (std::int32_t x = 0; x < picture.width(); ++x)
        brightest = std::max<int>(brightest, picture.Row(y)[3 * x + 1]);
    }
    return brightest;
  }

  RunState StateOfRun() {
    RunState run{.project = project.settings, .images = project.images, .files = files, .formats = formats};
    run.RunInfo.resize(1);
    run.ImageCount = 1;
    return run;
  }
};

TEST_F(PictureRecipesTest, WithoutAWatermarkThereIsNoPainter) {
  RunState run = StateOfRun();
  PrepareWatermarks(run, screen, texts);
  EXPECT_EQ(run.ImageWatermark, nullptr);
  EXPECT_EQ(run.ThumbnailWatermark, nullptr);
  EXPECT_FALSE(ImageRecipe(run, 1));
  EXPECT_EQ(ThumbnailRecipe(run, 1).watermark, nullptr);
}

TEST_F(PictureRecipesTest, EachTargetHasOnePainterForARun) {
  project.settings.ImageWatermark.checkUseWatermark = 1;
  project.settings.ThumbnailWatermark.checkUseWatermark = 1;
  RunState run = StateOfRun();
  PrepareWatermarks(run, screen, texts);
  ASSERT_TRUE(ImageRecipe(run, 1));
  EXPECT_EQ(ImageRecipe(run, 1)->watermark, run.ImageWatermark);
  EXPECT_EQ(ThumbnailRecipe(run, 1).watermark, run.ThumbnailWatermark);
  EXPECT_NE(run.ImageWatermark, run.ThumbnailWatermark);
}

TEST_F(PictureRecipesTest, AnImageWithAWatermarkIsNotCopied) {
  project.settings.ImageWatermark.checkUseWatermark = 1;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_GT(Brightest("Images/a.jpg"), 180);
  EXPECT_LT(Brightest("Thumbs/thumb_a.jpg"), 140);
}

TEST_F(PictureRecipesTest, ThumbnailsHaveTheirOwnWatermark) {
  project.settings.ThumbnailWatermark.checkUseWatermark = 1;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_LT(Brightest("Images/a.jpg"), 140);
  EXPECT_GT(Brightest("Thumbs/thumb_a.jpg"), 180);
}

TEST_F(PictureRecipesTest, AWatermarkTooLargeForItsCoordinatesEndsTheRun) {
  project.settings.ImageWatermark = {.checkUseWatermark = 1, .textWatermark = "WIDE", .FontSize = 32767};
  project.settings.ImageWatermark.comboTextPlacement = 4;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes.front().title, "Failure");
  EXPECT_NE(boxes.boxes.front().text.find("Error #6"), std::string::npos) << boxes.boxes.front().text;
}

TEST_F(PictureRecipesTest, AnInvalidWatermarkPercentageEndsRunsThatDrawIt) {
  const image::WatermarkSettings bad = {.checkUseWatermark = 1, .sliderAlpha = 300};
  RunOrder order = OrderToCreate();
  order.CreateThumbnails = false;
  project.settings.ImageWatermark = bad;
  EXPECT_EQ(Run(order), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_NE(boxes.boxes[0].text.find("Overflow\r\rError #6"), std::string::npos) << boxes.boxes[0].text;
  EXPECT_EQ(host.statuses.back(), "") << "the run has ended";

  project.settings.ImageWatermark = {};
  project.settings.ThumbnailWatermark = bad;
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(FilesIn("out"), std::set<std::string>{"Images/a.jpg"});
}

TEST_F(PictureRecipesTest, AnInvalidWatermarkPercentageIsIgnoredByRunsThatDoNotDrawIt) {
  const image::WatermarkSettings bad = {.checkUseWatermark = 1, .sliderAlpha = -1};
  project.settings.ImageWatermark = bad;
  RunOrder order = OrderToCreate();
  order.CreateImages = false;
  EXPECT_EQ(Run(order), RunEnd::Success) << "no image is made";
  EXPECT_EQ(Run(OrderToPreview()), RunEnd::Success) << "a preview";

  project.settings.ImageWatermark = {};
  project.settings.ThumbnailWatermark = bad;
  order.CreateImages = true;
  order.CreateThumbnails = false;
  EXPECT_EQ(Run(order), RunEnd::Success) << "no thumbnail is made";

  folder.Write("out/Thumbs/thumb_a.jpg", "old");
  order.CreateThumbnails = true;
  order.Overwrite = false;
  EXPECT_EQ(Run(order), RunEnd::Success) << "the thumbnail exists";
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(PictureRecipesTest, TheTextScalesWithThePixelsPerInch) {
  class FineScreen : public env::Screen {
   public:
    [[nodiscard]] std::int32_t PixelsPerInch() const override { return 192; }
  };
  project.settings.ImageWatermark = {.checkUseWatermark = 1, .textWatermark = "H", .FontSize = 14};
  project.settings.ImageWatermark.comboTextPlacement = 0;
  RunState run = StateOfRun();
  PrepareWatermarks(run, screen, texts);
  const auto coarse = run.ImageWatermark->MaskFor(200, 200);
  PrepareWatermarks(run, FineScreen(), texts);
  EXPECT_NEAR(run.ImageWatermark->MaskFor(200, 200)->height(), 2 * coarse->height(), 1);
}

}  // namespace
}  // namespace vantorium::generation
