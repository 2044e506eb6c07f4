#include "image/mHLSRGB.h"

#include "env/Numbers.h"

#include <algorithm>

namespace vantorium::image {
namespace {

// Calculations use double precision; stored values are floats.
float Single(double value) {
  return static_cast<float>(value);
}

float Saturation(double max, double min, double lightness) {
  return Single(lightness > 0.5 ? (max - min) / (2 - max - min) : (max - min) / (max + min));
}

float Hue(double rf, double gf, double bf, double max, double delta) {
  if (rf == max) return Single((gf - bf) / delta);
  if (gf == max) return Single(2 + (bf - rf) / delta);
  return Single(4 + (rf - gf) / delta);
}

struct Channels {
  float r;
  float g;
  float b;
};

// The middle channel grows with the distance of the hue from the middle of its third of the circle.
float Below(double max, double min, double distance) {
  return Single(min - (max - min) * distance);
}
float Above(double max, double min, double distance) {
  return Single((max - min) * distance + min);
}

Channels ChannelsBetween(float H, float max, float min) {
  const double hue = H;
  if (hue < 1) return hue < 0 ? Channels{max, min, Below(max, min, hue)} : Channels{max, Above(max, min, hue), min};
  if (hue < 3) {
    return hue < 2 ? Channels{Below(max, min, hue - 2), max, min} : Channels{min, max, Above(max, min, hue - 2)};
  }
  return hue < 4 ? Channels{min, Below(max, min, hue - 4), max} : Channels{Above(max, min, hue - 4), min, max};
}

Channels ChannelsOf(float H, float S, float L) {
  if (S == 0) return {L, L, L};
  const double saturation = S;
  const double lightness = L;
  const float min = Single(lightness > 0.5 ? lightness - saturation * (1 - lightness) : lightness * (1 - saturation));
  return ChannelsBetween(H, Single(2 * lightness - min), min);
}

}  // namespace

float Maximum(float a, float b, float c) {
  return std::max({a, b, c});
}

float Minimum(float a, float b, float c) {
  return std::min({a, b, c});
}

void RGBToHLS(std::int32_t r, std::int32_t g, std::int32_t b, float& H, float& S, float& L) {
  const float rf = Single(r / 255.0);
  const float gf = Single(g / 255.0);
  const float bf = Single(b / 255.0);
  const float max = Maximum(rf, gf, bf);
  const float min = Minimum(rf, gf, bf);
  L = Single((static_cast<double>(max) + min) / 2);
  S = 0;
  H = 0;
  if (max == min) return;
  S = Saturation(max, min, L);
  H = Hue(rf, gf, bf, max, Single(static_cast<double>(max) - min));
}

void HLSToRGB(float H, float S, float L, std::int32_t& r, std::int32_t& g, std::int32_t& b) {
  const Channels channels = ChannelsOf(H, S, L);
  r = env::ToInt32(channels.r * 255.0);
  g = env::ToInt32(channels.g * 255.0);
  b = env::ToInt32(channels.b * 255.0);
}

}  // namespace vantorium::image
