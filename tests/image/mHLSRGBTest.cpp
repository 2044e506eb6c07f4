#include "env/RuntimeFailure.h"
#include "image/mHLSRGB.h"
#include "tests/fakes/FailureOf.h"
#include "tests/image/PictureFixtures.h"

namespace vantorium::image {
namespace {

struct HLS {
  float H = -9;
  float S = -9;
  float L = -9;
};

HLS ToHLS(fakes::RGB color) {
  HLS hls;
  RGBToHLS(color.r, color.g, color.b, hls.H, hls.S, hls.L);
  return hls;
}

TEST(mHLSRGB, MaximumAndMinimumCompareAllThreeChannels) {
  for (const auto& v : {std::array{1.F, 2.F, 3.F}, {3.F, 1.F, 2.F}, {2.F, 3.F, 1.F}, {3.F, 3.F, 1.F}}) {
    EXPECT_EQ(Maximum(v[0], v[1], v[2]), 3.F);
    EXPECT_EQ(Minimum(v[0], v[1], v[2]), 1.F);
  }
}

TEST(mHLSRGB, HueIsInSixthsOfTheCircleAndNotWrapped) {
  const std::pair<fakes::RGB, float> cases[] = {{{255, 0, 0}, 0.F},        {{255, 255, 0}, 1.F}, {{0, 255, 0}, 2.F},
                                                {{0, 255, 255}, 3.F},      {{0, 0, 255}, 4.F},   {{255, 0, 255}, -1.F},
                                                {{128, 0, 255}, 4.501961F}};
  for (const auto& [color, hue] : cases) EXPECT_FLOAT_EQ(ToHLS(color).H, hue) << color;
}

TEST(mHLSRGB, GreyHasNeitherHueNorSaturation) {
  for (int v = 0; v < 256; ++v) {
    const HLS hls = ToHLS({v, v, v});
    EXPECT_EQ(hls.H, 0.F) << v;
    EXPECT_EQ(hls.S, 0.F) << v;
    EXPECT_EQ(hls.L, static_cast<float>(v / 255.0)) << v;
  }
}

TEST(mHLSRGB, SaturationIsRelativeToBlackBelowHalfLightnessAndToWhiteAbove) {
  EXPECT_FLOAT_EQ(ToHLS({100, 50, 50}).S, 50.F / 150.F);
  EXPECT_FLOAT_EQ(ToHLS({250, 200, 200}).S, 50.F / 60.F);
}

TEST(mHLSRGB, ConvertingThereAndBackIsOffByOneAtMost) {
  for (int r = 0; r < 256; r += 5) {
    for (int g = 0; g < 256; g += 3) {
      for (int b = 0; b < 256; b += 7) {
        const HLS hls = ToHLS({r, g, b});
        std::int32_t back[3] = {};
        HLSToRGB(hls.H, hls.S, hls.L, back[0], back[1], back[2]);
        EXPECT_LE(std::abs(back[0] - r) + std::abs(back[1] - g) + std::abs(back[2] - b), 1)
            << r << " " << g << " " << b;
      }
    }
  }
}

TEST(mHLSRGB, EachSixthOfTheCircleHasItsOrderOfChannels) {
  const std::pair<float, fakes::RGB> cases[] = {{-0.5F, {204, 51, 128}}, {0.5F, {204, 128, 51}},
                                                {1.5F, {128, 204, 51}},  {2.5F, {51, 204, 128}},
                                                {3.5F, {51, 128, 204}},  {4.5F, {128, 51, 204}}};
  for (const auto& [hue, color] : cases) {
    std::int32_t got[3] = {};
    HLSToRGB(hue, 0.6F, 0.5F, got[0], got[1], got[2]);
    EXPECT_EQ((fakes::RGB{got[0], got[1], got[2]}), color) << hue;
  }
}

TEST(mHLSRGB, ALightnessBeyondTheRangeOfIntegersIsAFailure) {
  std::int32_t rgb[3] = {};
  EXPECT_EQ(fakes::FailureOf([&] { HLSToRGB(0, 0, 1e30F, rgb[0], rgb[1], rgb[2]); }), env::FailureKind::Overflow);
}

}  // namespace
}  // namespace vantorium::image
