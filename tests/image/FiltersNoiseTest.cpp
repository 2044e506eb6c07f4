#include "image/Filters.h"
#include "image/FiltersLiteral.h"
#include "tests/image/PictureFixtures.h"

#include <cmath>

namespace vantorium::image {
namespace {

using fakes::PixelAt;

cDIBSection Noisy(cDIBSection dib, std::int32_t amount, bool random, std::uint64_t picture = 0) {
  NoiseStream stream(1, picture);
  AddNoise(dib, amount, random, stream);
  return dib;
}

// The offsets that noise added to one channel of a picture whose bytes were all 128.
std::vector<int> Offsets(const cDIBSection& dib, int channel) {
  std::vector<int> offsets;
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    for (std::int32_t x = 0; x < dib.width(); ++x) offsets.push_back(dib.Row(y)[3 * x + channel] - 128);
  }
  return offsets;
}

double Mean(const std::vector<int>& values) {
  double sum = 0;
  for (const int value : values) sum += value;
  return sum / static_cast<double>(values.size());
}

double Correlation(const std::vector<int>& a, const std::vector<int>& b, std::size_t shift = 0) {
  double ab = 0;
  double aa = 0;
  double bb = 0;
  for (std::size_t i = 0; i + shift < a.size(); ++i) {
    const double u = a[i];
    const double v = b[i + shift];
    ab += u * v;
    aa += u * u;
    bb += v * v;
  }
  return ab / std::sqrt(aa * bb);
}

TEST(AddNoise, EveryByteAtEveryAmountEqualsTheLiteralFilter) {
  const cDIBSection source = fakes::Random(300, 20, 4);
  for (std::int32_t amount = 0; amount <= 100; ++amount) {
    for (const bool random : {false, true}) {
      cDIBSection fast = fakes::CopyOf(source);
      cDIBSection literal = fakes::CopyOf(source);
      NoiseStream one(3, 4);
      NoiseStream other(3, 4);
      AddNoise(fast, amount, random, one);
      AddNoiseLiteral(literal, amount, random, other);
      ASSERT_EQ(fakes::Difference(fast, literal), "") << amount << (random ? " random" : "");
    }
  }
}

// A tie between two bytes occurs about once in 100,000 bytes.
TEST(AddNoise, TiesAreRoundedLikeTheLiteralFilter) {
  cDIBSection fast = fakes::EveryColor();
  cDIBSection literal = fakes::EveryColor();
  NoiseStream one(1, 1);
  NoiseStream other(1, 1);
  AddNoise(fast, 100, false, one);
  AddNoiseLiteral(literal, 100, false, other);
  EXPECT_EQ(fakes::Difference(fast, literal), "");
}

TEST(AddNoise, OffsetsAreUniformAndIndependent) {
  const cDIBSection dib = Noisy(fakes::Plain(500, 400, {128, 128, 128}), 100, false);
  std::vector<int> channels[3];
  for (int channel = 0; channel < 3; ++channel) {
    const auto& offsets = channels[channel] = Offsets(dib, channel);
    EXPECT_EQ(*std::min_element(offsets.begin(), offsets.end()), -64);
    EXPECT_EQ(*std::max_element(offsets.begin(), offsets.end()), 64);
    EXPECT_NEAR(Mean(offsets), 0, 0.4);
    // Each of the 127 inner values occurs in 1 / 128 of the bytes.
    for (int value = -63; value < 64; ++value) {
      EXPECT_NEAR(static_cast<double>(std::count(offsets.begin(), offsets.end(), value)), 1562.5, 200) << value;
    }
    EXPECT_NEAR(Correlation(offsets, offsets, 1), 0, 0.01);
    EXPECT_NEAR(Correlation(offsets, offsets, 500), 0, 0.01);
  }
  EXPECT_NEAR(Correlation(channels[0], channels[1]), 0, 0.01);
  EXPECT_NEAR(Correlation(channels[1], channels[2]), 0, 0.01);
  EXPECT_NEAR(Correlation(channels[0], channels[2]), 0, 0.01);
}

TEST(AddNoise, WhiteAndBlackAreClamped) {
  const cDIBSection white = Noisy(fakes::Plain(100, 100, {255, 255, 255}), 100, false);
  const cDIBSection black = Noisy(fakes::Plain(100, 100, {0, 0, 0}), 100, false);
  int darkest = 255;
  int lightest = 0;
  for (std::int32_t x = 0; x < 100; ++x) {
    darkest = std::min(darkest, PixelAt(white, x, 5).g);
    lightest = std::max(lightest, PixelAt(black, x, 5).g);
  }
  EXPECT_GE(darkest, 191);
  EXPECT_LE(lightest, 64);
}

TEST(AddNoise, RandomNoiseLeavesThatPercentageOfThePixelsUnchanged) {
  for (const std::int32_t amount : {20, 50, 90}) {
    const cDIBSection dib = Noisy(fakes::Plain(400, 300, {128, 128, 128}), amount, true);
    int untreated = 0;
    for (std::int32_t y = 0; y < 300; ++y) {
      for (std::int32_t x = 0; x < 400; ++x) untreated += PixelAt(dib, x, y) == fakes::RGB{128, 128, 128} ? 1 : 0;
    }
    EXPECT_NEAR(untreated / 120000.0, amount / 100.0, 0.01) << amount;
  }
}

TEST(AddNoise, RandomNoiseOfHundredAndUniformNoiseOfZeroChangeNothing) {
  const cDIBSection source = fakes::Random(99, 50, 5);
  EXPECT_EQ(fakes::Difference(Noisy(fakes::CopyOf(source), 100, true), source), "");
  EXPECT_EQ(fakes::Difference(Noisy(fakes::CopyOf(source), 0, false), source), "");
}

TEST(AddNoise, EachPassAndEachPictureHasItsOwnNumbers) {
  NoiseStream stream(1, 7);
  cDIBSection first = fakes::Plain(50, 50, {128, 128, 128});
  cDIBSection second = fakes::CopyOf(first);
  AddNoise(first, 50, false, stream);
  AddNoise(second, 50, false, stream);
  const cDIBSection again = Noisy(fakes::Plain(50, 50, {128, 128, 128}), 50, false, 7);
  const cDIBSection other = Noisy(fakes::Plain(50, 50, {128, 128, 128}), 50, false, 8);
  EXPECT_EQ(fakes::Difference(again, first), "");
  EXPECT_NEAR(Correlation(Offsets(first, 0), Offsets(second, 0)), 0, 0.1);
  EXPECT_NEAR(Correlation(Offsets(first, 0), Offsets(other, 0)), 0, 0.1);
}

// An amount beyond its range widens the spread further or reverses it.
TEST(AddNoise, AmountsBeyondTheRangeDoNoHarm) {
  for (const std::int32_t amount : {-2147483647, -50, 101, 1000, 2147483647}) {
    for (const bool random : {false, true}) {
      const cDIBSection dib = Noisy(fakes::Random(21, 5, 6), amount, random);
      EXPECT_TRUE(fakes::PaddingUntouched(dib)) << amount;
    }
  }
}

}  // namespace
}  // namespace vantorium::image
