#include "image/WatermarkPlace.h"
#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FailureOf.h"

#include <ostream>

#include <gtest/gtest.h>

namespace vantorium::image {

std::ostream& operator<<(std::ostream& stream, const TextPlace& place) {
  return stream << (place.form == TextForm::Turned ? "turned" : "lines") << " at " << place.x << ", " << place.y;
}

namespace {

using fakes::BoxTextRaster;
using fakes::FailureOf;

TextPlace Place(std::int16_t placement, std::int32_t width, std::int32_t height, const BoxTextRaster& raster) {
  LogFont font;
  return PlaceWatermark(font, "text", placement, width, height, raster);
}

std::int32_t Escapement(std::int16_t placement, std::int32_t width, std::int32_t height) {
  LogFont font;
  const BoxTextRaster raster(200, 53);
  std::ignore = PlaceWatermark(font, "text", placement, width, height, raster);
  EXPECT_EQ(font.lfOrientation, font.lfEscapement);
  return font.lfEscapement;
}

TEST(WatermarkPlace, StraightTextsTouchTheEdgesOrAreCentered) {
  const BoxTextRaster raster(200, 53);
  const std::pair<int, int> wanted[] = {{0, 0},     {220, 0}, {440, 0},   {0, 214},  {220, 214},
                                        {440, 214}, {0, 427}, {220, 427}, {440, 427}};
  for (std::int16_t placement = 0; placement < 9; ++placement) {
    const auto [x, y] = wanted[placement];
    EXPECT_EQ(Place(placement, 640, 480, raster), (TextPlace{TextForm::Lines, x, y})) << placement;
  }
}

TEST(WatermarkPlace, AnUnknownPlacementIsTheTopLeft) {
  const BoxTextRaster raster(200, 53);
  for (const std::int16_t placement : {std::int16_t{-1}, std::int16_t{11}, std::int16_t{32767}, std::int16_t{-32768}}) {
    EXPECT_EQ(Place(placement, 640, 480, raster), (TextPlace{TextForm::Lines, 0, 0})) << placement;
  }
}

TEST(WatermarkPlace, HalvesAreRoundedSeparatelyWithTiesToEven) {
  struct Case {
    std::int32_t side, text, position;
  };
  for (const Case& c : {Case{101, 50, 26}, Case{100, 51, 24}, Case{100, 50, 25}, Case{101, 51, 25}, Case{50, 53, -2},
                        Case{50, 51, 0}, Case{50, 55, -2}, Case{50, 57, -4}}) {
    EXPECT_EQ(Place(1, c.side, 10, BoxTextRaster(c.text, 5)).x, c.position) << c.side << ", text " << c.text;
    EXPECT_EQ(Place(3, 10, c.side, BoxTextRaster(5, c.text)).y, c.position) << c.side << ", text " << c.text;
  }
}

TEST(WatermarkPlace, ATextLargerThanThePictureBeginsOutsideIt) {
  const BoxTextRaster raster(300, 90);
  EXPECT_EQ(Place(0, 100, 50, raster), (TextPlace{TextForm::Lines, 0, 0}));
  EXPECT_EQ(Place(4, 100, 50, raster), (TextPlace{TextForm::Lines, -100, -20}));
  EXPECT_EQ(Place(8, 100, 50, raster), (TextPlace{TextForm::Lines, -200, -40}));
}

TEST(WatermarkPlace, TheAngleOfADiagonalIsTruncatedToWholeDegrees) {
  struct Case {
    std::int32_t width, height, tenths;
  };
  for (const Case& c : {Case{500, 500, 450}, Case{1, 1, 450}, Case{640, 480, 360}, Case{480, 640, 530},
                        Case{800, 300, 200}, Case{1000, 17, 0}, Case{1000, 18, 10}, Case{1, 1000, 890}}) {
    EXPECT_EQ(Escapement(10, c.width, c.height), c.tenths) << c.width << " x " << c.height;
    EXPECT_EQ(Escapement(9, c.width, c.height), -c.tenths) << c.width << " x " << c.height;
  }
}

TEST(WatermarkPlace, ADiagonalLineIsCenteredInThePicture) {
  // For 640 x 480 the sine is 0.6 and the cosine 0.8.
  EXPECT_EQ(Place(9, 640, 480, BoxTextRaster(9999, 53)), (TextPlace{TextForm::Turned, 304, 261}));
  EXPECT_EQ(Place(10, 640, 480, BoxTextRaster(9999, 53)), (TextPlace{TextForm::Turned, 336, 261}));
  EXPECT_EQ(Place(10, 641, 481, BoxTextRaster(9999, 1)), (TextPlace{TextForm::Turned, 321, 241}));
}

TEST(WatermarkPlace, TheFontGetsTheAngleOfTheText) {
  LogFont font{.lfEscapement = 77, .lfOrientation = 77};
  const BoxTextRaster raster(200, 53);
  std::ignore = PlaceWatermark(font, "text", 4, 640, 480, raster);
  EXPECT_EQ(font.lfQuality, 3);
  EXPECT_EQ(font.lfEscapement, 0);
  EXPECT_EQ(font.lfOrientation, 0);
}

TEST(WatermarkPlace, PicturesOver16BitsOverflow) {
  const BoxTextRaster raster(200, 53);
  for (const std::int16_t placement : {std::int16_t{0}, std::int16_t{4}, std::int16_t{9}, std::int16_t{10}}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = Place(placement, 32767, 32767, raster); }), std::nullopt) << placement;
    EXPECT_EQ(FailureOf([&] { std::ignore = Place(placement, 32768, 1, raster); }), env::FailureKind::Overflow)
        << placement;
    EXPECT_EQ(FailureOf([&] { std::ignore = Place(placement, 1, 32768, raster); }), env::FailureKind::Overflow)
        << placement;
  }
}

TEST(WatermarkPlace, StraightTextsOver16BitsOverflow) {
  for (const std::int16_t placement : {std::int16_t{0}, std::int16_t{4}, std::int16_t{8}, std::int16_t{11}}) {
    for (const auto& [width, height] :
         {TextExtent{32768, 1}, TextExtent{1, 32768}, TextExtent{std::int64_t{1} << 40, 1}}) {
      const BoxTextRaster raster(width, height);
      EXPECT_EQ(FailureOf([&] { std::ignore = Place(placement, 640, 480, raster); }), env::FailureKind::Overflow)
          << placement << ", text " << width << " x " << height;
    }
    EXPECT_EQ(FailureOf([&] { std::ignore = Place(placement, 640, 480, BoxTextRaster(32767, 32767)); }), std::nullopt);
  }
}

TEST(WatermarkPlace, OnADiagonalOnlyTheCoordinatesMayOverflow) {
  EXPECT_EQ(FailureOf([] { std::ignore = Place(10, 640, 480, BoxTextRaster(std::int64_t{1} << 40, 53)); }),
            std::nullopt);
  EXPECT_EQ(FailureOf([] { std::ignore = Place(10, 640, 480, BoxTextRaster(1, 81317)); }), std::nullopt);
  EXPECT_EQ(FailureOf([] { std::ignore = Place(10, 640, 480, BoxTextRaster(1, 81320)); }), env::FailureKind::Overflow);
  EXPECT_EQ(FailureOf([] { std::ignore = Place(9, 480, 640, BoxTextRaster(1, 90000)); }), env::FailureKind::Overflow);
}

}  // namespace
}  // namespace vantorium::image
