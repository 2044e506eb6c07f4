#include "image/JPEG.h"
#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/files/ReducedPicture.h"

namespace vantorium::ui {
namespace {

using fakes::JpegRecipe;
using fakes::MakeJpeg;

struct DivisorCase {
  image::PictureSize picture;
  image::PictureSize box;
  int divisor;
};

TEST(ReducedPicture, TheDivisorKeepsAsManyPixelsAsAreShown) {
  for (const DivisorCase& c : std::vector<DivisorCase>{{{800, 600}, {800, 600}, 1},
                                                       {{1, 1}, {800, 600}, 1},
                                                       {{1599, 1199}, {800, 600}, 1},
                                                       {{1600, 10}, {800, 600}, 2},
                                                       {{10, 1200}, {800, 600}, 2},
                                                       {{3200, 2400}, {800, 600}, 4},
                                                       {{6000, 4000}, {800, 600}, 4},
                                                       {{4000, 6000}, {800, 600}, 8},
                                                       {{65500, 65500}, {800, 600}, 8},
                                                       {{30, 20}, {0, 0}, 8}}) {
    EXPECT_EQ(DivisorFor(c.picture, c.box), c.divisor) << c.picture.width << "x" << c.picture.height;
  }
}

TEST(ReducedPicture, WithEnoughRoomItEqualsTheDecodedFile) {
  const fakes::TemporaryFolder folder;
  const auto file = folder.Write("a.jpg", MakeJpeg({}));
  image::cDIBSection whole;
  image::cDIBSection dib;
  ASSERT_TRUE(image::LoadJPEGImage(whole, file));
  ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 2000, .height = 2000}));
  ASSERT_EQ(dib.width(), whole.width());
  ASSERT_EQ(dib.height(), whole.height());
  for (std::int32_t y = 0; y < whole.height(); ++y) {
    ASSERT_TRUE(std::equal(whole.Row(y), whole.Row(y) + whole.width() * 3, dib.Row(y))) << y;
  }
}

/// The average of a square of the decoded file whose top left corner is (x, y), counted from the top.
int AverageOf(const image::cDIBSection& whole, int x, int y, int side, int channel) {
  int sum = 0;
  for (int row = y; row < y + side; ++row) {
    for (int column = x; column < x + side; ++column) {
      sum += whole.Row(whole.height() - 1 - row)[column * 3 + channel];
    }
  }
  return sum / (side * side);
}

TEST(ReducedPicture, EveryKindOfFileIsCloseToTheAveragedFullPicture) {
  const fakes::TemporaryFolder folder;
  for (JpegRecipe recipe : fakes::EveryKindOfJpeg()) {
    recipe.width = 64;
    recipe.height = 40;
    const auto pixels = [](int x, int y) {
      const auto level = static_cast<std::uint8_t>(40 + x + 2 * y);
      return std::array<std::uint8_t, 4>{level, static_cast<std::uint8_t>(level / 2), 90, 200};
    };
    const auto file = folder.Write("a.jpg", MakeJpeg(recipe, pixels));
    image::cDIBSection whole;
    image::cDIBSection dib;
    ASSERT_TRUE(image::LoadJPEGImage(whole, file)) << recipe;
    ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 16, .height = 10})) << recipe;
    ASSERT_EQ(dib.width(), 16) << recipe;
    ASSERT_EQ(dib.height(), 10) << recipe;
    for (int y = 1; y < 9; ++y) {
      for (int x = 1; x < 15; ++x) {
        EXPECT_NEAR(dib.Row(9 - y)[x * 3 + 1], AverageOf(whole, x * 4, y * 4, 4, 1), 12) << recipe << x << "," << y;
      }
    }
  }
}

TEST(ReducedPicture, SidesAreRoundedUp) {
  const fakes::TemporaryFolder folder;
  image::cDIBSection dib;
  ASSERT_TRUE(
      LoadReducedPicture(dib, folder.Write("a.jpg", MakeJpeg({.width = 37, .height = 29})), {.width = 9, .height = 9}));
  EXPECT_EQ(dib.width(), 10);
  EXPECT_EQ(dib.height(), 8);
}

TEST(ReducedPicture, AFileThatCannotBeDecodedCompletelyGivesNothing) {
  const fakes::TemporaryFolder folder;
  image::cDIBSection dib;
  const image::PictureSize box = {.width = 10, .height = 10};
  const std::string jpeg = MakeJpeg({});
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Path() / "gone.jpg", box));
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Path(), box));
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Write("empty.jpg", ""), box));
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Write("text.jpg", "no picture"), box));
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Write("cut.jpg", jpeg.substr(0, jpeg.size() - 30)), box));
  EXPECT_FALSE(LoadReducedPicture(dib, folder.Write("huge.jpg", fakes::ClaimingSize(jpeg, 60000, 60000)), box));
  EXPECT_TRUE(LoadReducedPicture(dib, folder.Write("good.jpg", jpeg), box));
}

TEST(ReducedPicture, AStopRequestEndsIt) {
  const fakes::TemporaryFolder folder;
  image::cDIBSection dib;
  std::stop_source stop;
  stop.request_stop();
  EXPECT_FALSE(
      LoadReducedPicture(dib, folder.Write("a.jpg", MakeJpeg({})), {.width = 10, .height = 10}, stop.get_token()));
}

TEST(ReducedPicture, APhotographIsTurnedAndReducedToFitItsUprightSize) {
  const fakes::TemporaryFolder folder;
  const auto file = folder.Write("a.jpg", fakes::WithOrientation(MakeJpeg({.width = 160, .height = 80}), 6));
  image::cDIBSection dib;
  ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 40, .height = 160}, {}, {.upright = true}));
  EXPECT_EQ(dib.width(), 40);
  EXPECT_EQ(dib.height(), 80);
  ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 40, .height = 160}));
  EXPECT_EQ(dib.width(), 40);
  EXPECT_EQ(dib.height(), 20);
}

TEST(ReducedPicture, ColorsAreConvertedOnRequest) {
  const fakes::TemporaryFolder folder;
  const std::string profile = fakes::ProfileOf(fakes::TestProfile::AdobeRGB);
  const auto red = fakes::InProfile(profile, {200, 60, 40});
  const auto pixels = [&red](int, int) { return std::array<std::uint8_t, 4>{red[0], red[1], red[2], 0}; };
  const auto file = folder.Write("a.jpg", fakes::WithProfile(MakeJpeg({}, pixels), profile));
  image::cDIBSection dib;
  ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 90, .height = 90}, {}, {.trueColors = true}));
  EXPECT_NEAR(dib.Row(0)[2], 200, 4);
  ASSERT_TRUE(LoadReducedPicture(dib, file, {.width = 90, .height = 90}));
  EXPECT_LT(dib.Row(0)[2], 190);
}

}  // namespace
}  // namespace vantorium::ui
