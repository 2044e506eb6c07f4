#include "image/JPEGInks.h"

#include <array>
#include <cmath>

namespace vantorium::image {
namespace {

TEST(JPEGInks, TheLightIsTheProductOfWhatInkAndBlackLeave) {
  for (unsigned ink = 0; ink < 256; ++ink) {
    for (unsigned black = 0; black < 256; ++black) {
      const auto light = static_cast<std::uint8_t>(std::lround((255 - ink) * (255 - black) / 255.0));
      const std::array<std::uint8_t, 4> inks = {static_cast<std::uint8_t>(ink), 0, 255,
                                                static_cast<std::uint8_t>(black)};
      std::array<std::uint8_t, 3> bgr = {};
      InksToBGR(inks, true, bgr.data());
      ASSERT_EQ(bgr, (std::array<std::uint8_t, 3>{0, static_cast<std::uint8_t>(255 - black), light}))
          << ink << " and black " << black;
    }
  }
}

TEST(JPEGInks, InvertedInksAreLight) {
  const std::array<std::uint8_t, 8> inks = {10, 20, 30, 40, 250, 0, 128, 7};
  std::array<std::uint8_t, 8> light = inks;
  for (auto& byte : light) byte = static_cast<std::uint8_t>(255 - byte);
  std::array<std::uint8_t, 6> ofInks = {};
  std::array<std::uint8_t, 6> ofLight = {};
  InksToBGR(inks, true, ofInks.data());
  InksToBGR(light, false, ofLight.data());
  EXPECT_EQ(ofInks, ofLight);
}

}  // namespace
}  // namespace vantorium::image
