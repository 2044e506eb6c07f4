#include "image/literal/ResampleLiteral.h"

#include "env/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vantorium::image::literal {
namespace {

// A position in the source along one axis. `at` and `next` are clamped to the source: where `next` would lie outside,
// its weight is 0.
struct Position {
  std::int32_t at;
  std::int32_t next;
  float weight;
};

Position PositionOf(float scale, std::int32_t index, std::int32_t side) {
  const auto exact = static_cast<float>(static_cast<double>(scale) * index);
  const double whole = std::floor(static_cast<double>(exact));
  const auto at = static_cast<std::int32_t>(whole);
  return {std::min(at, side - 1), std::min(at + 1, side - 1), static_cast<float>(exact - whole)};
}

double Between(float weight, double first, double second) {
  const double share = weight;
  return env::RoundHalfEven((1 - share) * first + share * second);
}

std::uint8_t Channel(const cDIBSection& source, const Position& x, const Position& y, std::int32_t channel) {
  const std::uint8_t* lower = source.Row(y.at);
  const std::uint8_t* upper = source.Row(y.next);
  const double left = Between(y.weight, lower[3 * x.at + channel], upper[3 * x.at + channel]);
  const double right = Between(y.weight, lower[3 * x.next + channel], upper[3 * x.next + channel]);
  return static_cast<std::uint8_t>(std::clamp(Between(x.weight, left, right), 0.0, 255.0));
}

void Copy(const cDIBSection& source, cDIBSection& target) {
  const auto bytes = static_cast<std::size_t>(source.width()) * 3;
  for (std::int32_t y = 0; y < source.height(); ++y) std::memcpy(target.Row(y), source.Row(y), bytes);
}

void Interpolate(const cDIBSection& source, cDIBSection& target) {
  const auto xScale = static_cast<float>((source.width() - 1) / static_cast<double>(target.width()));
  const auto yScale = static_cast<float>((source.height() - 1) / static_cast<double>(target.height()));
  for (std::int32_t y = 0; y < target.height(); ++y) {
    const Position row = PositionOf(yScale, y, source.height());
    for (std::int32_t x = 0; x < target.width(); ++x) {
      const Position column = PositionOf(xScale, x, source.width());
      for (std::int32_t channel = 0; channel < 3; ++channel) {
        target.Row(y)[3 * x + channel] = Channel(source, column, row, channel);
      }
    }
  }
}

}  // namespace

std::unique_ptr<cDIBSection> ResampleLiteral(const cDIBSection& source, std::int32_t newHeight, std::int32_t newWidth) {
  auto target = std::make_unique<cDIBSection>();
  if (!target->Create(newWidth, newHeight)) return nullptr;
  if (source.width() == newWidth && source.height() == newHeight) {
    Copy(source, *target);
  } else {
    Interpolate(source, *target);
  }
  return target;
}

}  // namespace vantorium::image::literal
