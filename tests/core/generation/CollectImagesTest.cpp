#include "core/generation/CollectImages.h"
#include "core/generation/LocalTarget.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/fakes/PhotographMaker.h"

namespace vantorium::generation {
namespace {

struct Sizes {
  std::int32_t width, height, thumbWidth, thumbHeight;
  bool operator==(const Sizes&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Sizes& s) {
  return out << s.width << " x " << s.height << ", thumbnail " << s.thumbWidth << " x " << s.thumbHeight;
}

class CollectImagesTest : public RunFixture {
 protected:
  /// Collects the project's images into `run`.
  PhaseResult Collect() {
    const auto progress = host.CreateProgressWindow();
    const RunOrder order;
    LocalTarget target(run);
    return CollectImages({run, order, environment, *progress, target});
  }
  [[nodiscard]] Sizes SizesOf(std::int32_t image) const {
    const ImageRunInfo& info = run.Info(image);
    return {info.Width, info.Height, info.ThumbWidth, info.ThumbHeight};
  }

  RunState run{.project = project.settings, .images = project.images, .files = files, .formats = formats};
};

struct SizeCase {
  const char* what;
  core::Flag keepSize, keepRatio, setWidth;
  const char *width, *height;
  core::Flag thumbKeepRatio, thumbSetWidth;
  const char *thumbWidth, *thumbHeight;
  Sizes expected;
};

TEST_F(CollectImagesTest, SizesFollowTheSettings) {
  AddPhotograph("a", 40, 30);
  for (const SizeCase& c : {
           SizeCase{"keep size", 1, 1, 0, "5", "5", 0, 0, "60", "50", {40, 30, 60, 50}},
           SizeCase{"width given", 0, 1, 1, "20", "5", 0, 0, "60", "50", {20, 15, 60, 50}},
           SizeCase{"height given", 0, 1, 0, "5", "15", 0, 0, "60", "50", {20, 15, 60, 50}},
           SizeCase{"both given", 0, 0, 1, "7", "9", 0, 1, "60", "50", {7, 9, 60, 50}},
           SizeCase{"thumbnail width given", 1, 0, 0, "5", "5", 1, 1, "20", "99", {40, 30, 20, 15}},
           SizeCase{"thumbnail height given", 1, 0, 0, "5", "5", 1, 0, "99", "15", {40, 30, 20, 15}},
           SizeCase{"thumbnail of the resized shape", 0, 0, 0, "10", "20", 1, 1, "8", "8", {10, 20, 8, 16}},
           SizeCase{"halves round to even", 0, 1, 1, "6", "5", 1, 1, "2", "5", {6, 4, 2, 1}},
           SizeCase{"a text that is no number leaves 0", 0, 1, 1, "wide", "5", 0, 0, "x", "5", {0, 0, 0, 5}},
           SizeCase{"a thumbnail of nothing divides by zero", 0, 0, 0, "x", "20", 1, 1, "8", "8", {0, 20, 8, 0}},
       }) {
    auto& s = project.settings;
    s.checkImageWrapperImageKeepSize = c.keepSize;
    s.checkImageWrapperImageKeepAspectRatio = c.keepRatio;
    s.checkImageWrapperImageSetWidth = c.setWidth;
    s.textImageWrapperImageWidth = c.width;
    s.textImageWrapperImageHeight = c.height;
    s.checkThumbnailsImageKeepAspectRatio = c.thumbKeepRatio;
    s.checkThumbnailsImageSetWidth = c.thumbSetWidth;
    s.textThumbnailsImageWidth = c.thumbWidth;
    s.textThumbnailsImageHeight = c.thumbHeight;
    EXPECT_EQ(Collect(), kGoOn) << c.what;
    EXPECT_EQ(SizesOf(1), c.expected) << c.what;
  }
}

TEST_F(CollectImagesTest, AnUnreadableSourceGivesNoSizeAndNoComputedSide) {
  AddEntry("gone", "T:\\photos\\gone.jpg");
  project.settings.checkImageWrapperImageKeepSize = 1;
  project.settings.checkThumbnailsImageKeepAspectRatio = 1;
  project.settings.checkThumbnailsImageSetWidth = 1;
  Collect();
  EXPECT_EQ(SizesOf(1), (Sizes{0, 0, 60, 0}));
  EXPECT_EQ(run.Info(1).FileTime, env::FileTime{});
}

TEST_F(CollectImagesTest, WithBothSizesGivenTheFileIsNotRead) {
  AddEntry("gone", "T:\\photos\\gone.jpg");
  project.settings.checkImageWrapperImageKeepAspectRatio = 0;
  Collect();
  EXPECT_EQ(SizesOf(1), (Sizes{400, 300, 60, 60}));
}

TEST_F(CollectImagesTest, IfTheProjectTurnsPhotographsTheirUprightSizesCount) {
  AddEntry("lying", "T:\\photos\\lying.jpg");
  auto& settings = project.settings;
  settings.checkThumbnailsImageKeepAspectRatio = 1;
  const auto sizes = [&](int orientation, core::Flag upright, core::Flag keepSize) {
    folder.Write("photos/lying.jpg", fakes::WithOrientation(PlainJpeg(80, 20), orientation));
    settings.checkImagesUpright = upright;
    settings.checkImageWrapperImageKeepSize = keepSize;
    Collect();
    return SizesOf(1);
  };
  EXPECT_EQ(sizes(6, 0, 1), (Sizes{80, 20, 240, 60}));
  EXPECT_EQ(sizes(6, 1, 1), (Sizes{20, 80, 15, 60}));
  EXPECT_EQ(sizes(6, 1, 0), (Sizes{75, 300, 15, 60}));
  EXPECT_EQ(sizes(3, 1, 1), (Sizes{80, 20, 240, 60}));
}

TEST_F(CollectImagesTest, MaximaCoverAllImages) {
  AddPhotograph("wide", 50, 10);
  AddPhotograph("high", 10, 50);
  project.settings.checkImageWrapperImageKeepSize = 1;
  project.settings.checkThumbnailsImageKeepAspectRatio = 1;
  Collect();
  EXPECT_EQ(run.MaxImageWidth, 50);
  EXPECT_EQ(run.MaxImageHeight, 50);
  EXPECT_EQ(run.MaxThumbWidth, 300);
  EXPECT_EQ(run.MaxThumbHeight, 60);
}

TEST_F(CollectImagesTest, NamesTimesAndCountsAreCollected) {
  AddPhotograph("a");
  for (int i = 0; i < 25; ++i) AddEntry("b" + std::to_string(i), "T:\\photos\\a.JPG");
  Collect();
  EXPECT_EQ(run.Info(1).FileName, "a.jpg");
  EXPECT_EQ(run.Info(2).FileName, "b0.JPG");
  EXPECT_EQ(run.Info(1).Path, "T:\\photos\\a.jpg");
  EXPECT_EQ(run.Info(1).FileTime, files.GetFileWriteTime("T:\\photos\\a.jpg"));
  EXPECT_EQ(run.Info(1).FileSize, "0KB");
  EXPECT_EQ(run.ImageCount, 26);
  EXPECT_EQ(run.ThumbnailPageCount, 2);
}

TEST_F(CollectImagesTest, ARequestedCancelStopsIt) {
  AddPhotograph("a");
  AddPhotograph("b");
  const auto progress = host.CreateProgressWindow();
  host.progress.cancelled = true;
  std::ignore = cancel.CheckForCancel(*progress);
  EXPECT_EQ(Collect(), RunEnd::Cancelled);
  EXPECT_TRUE(run.RunInfo.empty());
}

}  // namespace
}  // namespace vantorium::generation
