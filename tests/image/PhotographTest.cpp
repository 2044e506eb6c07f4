#include "image/JPEG.h"
#include "image/Photograph.h"
#include "image/SRGBTransform.h"
#include "image/literal/TurnLiteral.h"
#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/image/PictureFixtures.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

class PhotographTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::pair<std::int32_t, std::int32_t> SizeOf(const std::string& bytes, bool upright) const {
    std::int32_t width = -1;
    std::int32_t height = -1;
    const bool read = ReadPhotographSize(folder.Write("a.jpg", bytes), upright, width, height);
    EXPECT_EQ(read, width > 0);
    return {width, height};
  }

  fakes::TemporaryFolder folder;
  std::string jpeg = fakes::MakeJpeg({.width = 31, .height = 12});
};

TEST_F(PhotographTest, WidthAndHeightAreSwappedOnlyIfThePhotographIsToBeTurned) {
  for (int value = 1; value <= 8; ++value) {
    const std::string photograph = fakes::WithOrientation(jpeg, value);
    EXPECT_EQ(SizeOf(photograph, false), std::pair(31, 12)) << value;
    EXPECT_EQ(SizeOf(photograph, true), value < 5 ? std::pair(31, 12) : std::pair(12, 31)) << value;
  }
}

TEST_F(PhotographTest, AFileThatIsNotAPhotographHasNoSize) {
  EXPECT_EQ(SizeOf("text", true), std::pair(-1, -1));
  EXPECT_EQ(SizeOf("", true), std::pair(-1, -1));
}

TEST_F(PhotographTest, AWholePhotographIsLoadedWithItsCorrections) {
  const std::string profile = fakes::ProfileOf(fakes::TestProfile::DisplayP3);
  const auto file = folder.Write("b.jpg", fakes::WithOrientation(fakes::WithProfile(jpeg, profile), 7));
  cDIBSection stored;
  cDIBSection loaded;
  ASSERT_TRUE(LoadJPEGImage(stored, file));
  ASSERT_TRUE(LoadPhotograph(loaded, file, {}));
  EXPECT_EQ(EncodeJPEG(loaded, 90), EncodeJPEG(stored, 90));

  ASSERT_TRUE(LoadPhotograph(loaded, file, {.upright = true}));
  EXPECT_EQ(EncodeJPEG(loaded, 90), EncodeJPEG(image::literal::TurnLiteral(stored, Orientation::SwapSidesAround), 90));

  ASSERT_TRUE(LoadPhotograph(loaded, file, {.upright = true, .trueColors = true}));
  const auto colors = SRGBTransform::For(profile, 3);
  ASSERT_TRUE(colors);
  for (std::int32_t y = 0; y < stored.height(); ++y) colors->Apply(stored.Row(y), 31);
  EXPECT_EQ(EncodeJPEG(loaded, 90), EncodeJPEG(image::literal::TurnLiteral(stored, Orientation::SwapSidesAround), 90));
}

TEST_F(PhotographTest, ADamagedPhotographIsNotLoaded) {
  cDIBSection loaded;
  const std::string cut = fakes::WithOrientation(jpeg.substr(0, jpeg.size() / 2), 6);
  EXPECT_FALSE(LoadPhotograph(loaded, folder.Write("c.jpg", cut), {.upright = true}));
  EXPECT_FALSE(LoadPhotograph(loaded, folder.Path() / "missing.jpg", {.upright = true}));
}

}  // namespace
}  // namespace vantorium::image
