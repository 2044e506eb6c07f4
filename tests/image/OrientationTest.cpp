#include "image/Orientation.h"
#include "image/literal/TurnLiteral.h"
#include "tests/image/PictureFixtures.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

TEST(TurnUpright, AWholePictureIsTurnedLikeItsSinglePixels) {
  for (const auto& [width, height] : {std::pair{1, 1}, {1, 9}, {9, 1}, {4, 4}, {7, 5}, {20, 33}}) {
    for (int value = 1; value <= 8; ++value) {
      const auto orientation = static_cast<Orientation>(value);
      cDIBSection picture = fakes::Random(width, height, 5);
      const cDIBSection wanted = image::literal::TurnLiteral(picture, orientation);
      ASSERT_TRUE(TurnUpright(picture, orientation));
      ASSERT_EQ(picture.width(), wanted.width());
      ASSERT_EQ(picture.height(), wanted.height());
      for (std::int32_t y = 0; y < wanted.height(); ++y) {
        for (std::int32_t x = 0; x < wanted.width(); ++x) {
          ASSERT_EQ(fakes::PixelAt(picture, x, y), fakes::PixelAt(wanted, x, y)) << value << " at " << x << ", " << y;
        }
      }
    }
  }
}

TEST(TurnUpright, APictureStoredWithItsTopAtTheRightIsTurnedLeft) {
  cDIBSection picture = fakes::Plain(3, 2, {0, 0, 0});
  picture.Row(1)[0] = 255;  // blue at the top left of the stored picture
  ASSERT_TRUE(TurnUpright(picture, Orientation::TurnLeft));
  EXPECT_EQ(fakes::PixelAt(picture, 0, 0), (fakes::RGB{0, 0, 255}));
}

TEST(Turn, TheLastFourOrientationsSwapWidthAndHeight) {
  for (int value = 1; value <= 8; ++value) {
    const PictureSize upright = Turn(static_cast<Orientation>(value)).SizeOf({4, 3});
    EXPECT_EQ(upright, value < 5 ? (PictureSize{4, 3}) : (PictureSize{3, 4})) << value;
  }
}

}  // namespace
}  // namespace vantorium::image
