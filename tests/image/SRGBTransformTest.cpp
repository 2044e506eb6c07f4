#include "image/SRGBTransform.h"
#include "tests/fakes/PhotographMaker.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using fakes::ProfileOf;
using fakes::TestProfile;

std::array<int, 3> Converted(const SRGBTransform& transform, std::array<std::uint8_t, 3> rgb) {
  std::uint8_t bgr[] = {rgb[2], rgb[1], rgb[0]};
  transform.Apply(bgr, 1);
  return {bgr[2], bgr[1], bgr[0]};
}

TEST(SRGBTransform, ColorsOfAWiderSpaceAreConvertedToSRGB) {
  constexpr std::array<std::uint8_t, 3> kColors[] = {{0, 0, 0},     {255, 255, 255}, {200, 60, 40},
                                                     {30, 120, 50}, {90, 100, 210},  {128, 128, 128}};
  for (const TestProfile space : {TestProfile::DisplayP3, TestProfile::AdobeRGB}) {
    const std::string profile = ProfileOf(space);
    const auto transform = SRGBTransform::For(profile, 3);
    ASSERT_TRUE(transform);
    for (const auto& color : kColors) {
      const auto converted = Converted(*transform, fakes::InProfile(profile, color));
      for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(converted[i], color[i], 2) << int{color[0]} << " " << i;
    }
  }
}

TEST(SRGBTransform, ColorsOutsideSRGBAreClipped) {
  const auto transform = SRGBTransform::For(ProfileOf(TestProfile::DisplayP3), 3);
  ASSERT_TRUE(transform);
  EXPECT_EQ(Converted(*transform, {255, 0, 0}), (std::array<int, 3>{255, 0, 0}));
}

TEST(SRGBTransform, APictureInSRGBIsUnchanged) {
  EXPECT_FALSE(SRGBTransform::For(ProfileOf(TestProfile::SRGB), 3));
}

TEST(SRGBTransform, GraysOfAnotherGammaAreConverted) {
  const auto transform = SRGBTransform::For(ProfileOf(TestProfile::GrayGamma), 1);
  ASSERT_TRUE(transform);
  const auto middle = Converted(*transform, {128, 128, 128});
  EXPECT_NEAR(middle[0], 175, 2);  // (128 / 255) ^ 1.2 in the curve of sRGB
  EXPECT_EQ(middle[0], middle[1]);
  EXPECT_EQ(middle[1], middle[2]);
  EXPECT_EQ(Converted(*transform, {0, 0, 0}), (std::array<int, 3>{0, 0, 0}));
  EXPECT_EQ(Converted(*transform, {255, 255, 255}), (std::array<int, 3>{255, 255, 255}));
}

TEST(SRGBTransform, AProfileForOtherChannelsIsIgnored) {
  EXPECT_FALSE(SRGBTransform::For(ProfileOf(TestProfile::AdobeRGB), 1));
  EXPECT_FALSE(SRGBTransform::For(ProfileOf(TestProfile::GrayGamma), 3));
  for (const int channels : {-1, 0, 2, 4}) EXPECT_FALSE(SRGBTransform::For(ProfileOf(TestProfile::AdobeRGB), channels));
}

TEST(SRGBTransform, AnAbsentOrDamagedProfileIsIgnored) {
  const std::string profile = ProfileOf(TestProfile::AdobeRGB);
  EXPECT_FALSE(SRGBTransform::For("", 3));
  EXPECT_FALSE(SRGBTransform::For("no profile at all", 3));
  EXPECT_FALSE(SRGBTransform::For(std::string(5000, '\0'), 3));
  for (std::size_t size = 0; size < profile.size() / 2; size += 7) {
    EXPECT_FALSE(SRGBTransform::For(profile.substr(0, size), 3)) << size;
  }
  std::string noSignature = profile;
  noSignature[36] = 'x';
  EXPECT_FALSE(SRGBTransform::For(noSignature, 3));
  std::string link = profile;
  link.replace(12, 4, "link");
  EXPECT_FALSE(SRGBTransform::For(link, 3)) << "a device link profile";
}

}  // namespace
}  // namespace vantorium::image
