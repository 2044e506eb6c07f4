#include "image/NoiseStream.h"

#include <set>

namespace vantorium::image {
namespace {

TEST(NoiseStream, NumbersAreSinglePrecisionBelowOne) {
  const NoiseRow row = NoiseStream(1, 2).Row(3);
  double sum = 0;
  for (std::uint32_t i = 0; i < 100000; ++i) {
    const float r = row.Uniform(i);
    ASSERT_GE(r, 0.F) << i;
    ASSERT_LT(r, 1.F) << i;
    sum += r;
  }
  EXPECT_NEAR(sum / 100000, 0.5, 0.005);
}

TEST(NoiseStream, EqualSeedsPicturesAndPlacesGiveEqualNumbers) {
  NoiseStream one(5, 6);
  NoiseStream other(5, 6);
  EXPECT_EQ(one.Row(7).Bits(8), other.Row(7).Bits(8));
  one.NextPass();
  other.NextPass();
  EXPECT_EQ(one.Row(7).Bits(8), other.Row(7).Bits(8));
}

TEST(NoiseStream, AStreamCanBeginAtAnyRow) {
  NoiseStream whole(5, 6);
  NoiseStream part(5, 6, 70);
  whole.NextPass();
  part.NextPass();
  EXPECT_EQ(part.Row(0).Bits(8), whole.Row(70).Bits(8));
  EXPECT_EQ(part.Row(3).Bits(8), whole.Row(73).Bits(8));
  EXPECT_NE(part.Row(0).Bits(8), whole.Row(0).Bits(8));
}

TEST(NoiseStream, SeedPicturePassRowAndPlaceAllChangeTheNumbers) {
  std::set<std::uint32_t> numbers;
  int asked = 0;
  for (std::uint64_t seed = 0; seed < 4; ++seed) {
    for (std::uint64_t picture = 0; picture < 4; ++picture) {
      NoiseStream stream(seed, picture);
      for (int pass = 0; pass < 3; ++pass, stream.NextPass()) {
        for (std::int32_t row = 0; row < 4; ++row) {
          for (std::int32_t column = 0; column < 2; ++column, asked += 2) {
            numbers.insert(stream.Row(row).Bits(NoiseStream::OfByte(column)));
            numbers.insert(stream.Row(row).Bits(NoiseStream::OfPixel(column)));
          }
        }
      }
    }
  }
  EXPECT_EQ(asked, 768);
  EXPECT_GT(numbers.size(), 766U);  // two of 768 random 24-bit numbers may be equal by chance
}

TEST(NoiseStream, EachBitOfAPlaceFlipsEachBitOfItsNumberHalfOfTheTime) {
  constexpr std::uint32_t kPlaces = 4000;
  const NoiseRow row = NoiseStream(9, 9).Row(0);
  for (unsigned in = 0; in < 20; ++in) {
    int turned[24] = {};
    for (std::uint32_t i = 0; i < kPlaces; ++i) {
      const std::uint32_t change = row.Bits(i * 97) ^ row.Bits((i * 97) ^ (1U << in));
      for (unsigned out = 0; out < 24; ++out) turned[out] += (change >> out) & 1 ? 1 : 0;
    }
    for (unsigned out = 0; out < 24; ++out) EXPECT_NEAR(turned[out], kPlaces / 2, kPlaces / 12) << in << " to " << out;
  }
}

}  // namespace
}  // namespace vantorium::image
