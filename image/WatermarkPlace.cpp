#include "image/WatermarkPlace.h"

#include "env/Numbers.h"

#include <cmath>

namespace vantorium::image {
namespace {

std::int16_t Checked(std::int64_t value) {
  return env::ToInt16(static_cast<double>(value));
}

void Turn(LogFont& font, std::int32_t tenthsOfDegree) {
  font.lfEscapement = tenthsOfDegree;
  font.lfOrientation = tenthsOfDegree;
}

/// The position along one side: at its start, in its middle or at its end. The two are halved separately.
std::int32_t Aligned(int third, std::int16_t side, std::int16_t text) {
  if (third == 0) return 0;
  if (third == 1) return env::ToInt16(side / 2.0 - text / 2.0);
  return side - text;
}

TextPlace PlaceStraight(LogFont& font, std::string_view text, std::int16_t placement, std::int16_t width,
                        std::int16_t height, const TextRaster& raster) {
  Turn(font, 0);
  const TextExtent extent = raster.Measure(font, text, TextForm::Lines);
  const std::int16_t textWidth = Checked(extent.width);
  const std::int16_t textHeight = Checked(extent.height);
  const int cell = placement >= 0 && placement <= 8 ? placement : 0;
  return {TextForm::Lines, Aligned(cell % 3, width, textWidth), Aligned(cell / 3, height, textHeight)};
}

TextPlace PlaceDiagonal(LogFont& font, std::string_view text, std::int16_t placement, std::int16_t width,
                        std::int16_t height, const TextRaster& raster) {
  constexpr double kPi = 3.14159265358979;
  const int sign = placement == kTopLeftToBottomRight ? -1 : 1;
  const double angle = std::atan(env::Divide(height, width));
  Turn(font, sign * 10 * static_cast<std::int32_t>(std::floor(angle * 180 / kPi)));
  const double half = static_cast<double>(raster.Measure(font, text, TextForm::Turned).height) / 2.0;
  return {TextForm::Turned, env::ToInt16(width / 2.0 + sign * (half * std::sin(angle))),
          env::ToInt16(height / 2.0 + half * std::cos(angle))};
}

}  // namespace

TextPlace PlaceWatermark(LogFont& font, std::string_view text, std::int16_t placement, std::int32_t pictureWidth,
                         std::int32_t pictureHeight, const TextRaster& raster) {
  const std::int16_t width = Checked(pictureWidth);
  const std::int16_t height = Checked(pictureHeight);
  font.lfQuality = kNonAntialiasedQuality;
  const bool diagonal = placement == kTopLeftToBottomRight || placement == kBottomLeftToTopRight;
  return (diagonal ? PlaceDiagonal : PlaceStraight)(font, text, placement, width, height, raster);
}

}  // namespace vantorium::image
