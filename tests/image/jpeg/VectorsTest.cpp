#include "image/jpeg/Vectors.h"
#include "image/jpeg/vectors/Plain.h"

#include <array>
#include <bit>
#include <random>

#include <gtest/gtest.h>

namespace vantorium::image::jpeg {
namespace {

constexpr int kRounds = 2000;

// Half of the lanes are random, the others at or near the ends of a range.
class Random {
 public:
  [[nodiscard]] int Lane(int lowest, int highest) {
    const int distance = static_cast<int>(generator_() % 3);
    switch (generator_() % 4) {
      case 0:
        return lowest + distance;
      case 1:
        return highest - distance;
      default:
        return std::uniform_int_distribution(lowest, highest)(generator_);
    }
  }
  [[nodiscard]] Shorts Eight(int lowest = -32768, int highest = 32767) {
    Shorts vector = {};
    for (int i = 0; i < 8; ++i) vector[i] = static_cast<std::int16_t>(Lane(lowest, highest));
    return vector;
  }
  // Half of the vectors fit into 16 bits.
  [[nodiscard]] Ints Four() {
    const int highest = generator_() % 2 == 0 ? 0x8002 : 0x7FFFFFFF;
    return Ints{Lane(-highest, highest), Lane(-highest, highest), Lane(-highest, highest), Lane(-highest, highest)};
  }

 private:
  std::mt19937 generator_{1};
};

std::array<std::int16_t, 8> Lanes(Shorts vector) {
  return std::bit_cast<std::array<std::int16_t, 8>>(vector);
}

std::array<std::int32_t, 4> Lanes(Ints vector) {
  return std::bit_cast<std::array<std::int32_t, 4>>(vector);
}

TEST(Vectors, ArithmeticEqualsItsDefinition) {
  Random random;
  for (int i = 0; i < kRounds; ++i) {
    const Shorts a = random.Eight(-32767);
    const Shorts b = random.Eight();
    ASSERT_EQ(Lanes(SumsOfProducts(a, b)), Lanes(plain::SumsOfProducts(a, b)));
    const Shorts half = random.Eight(-16384, 16383);
    ASSERT_EQ(Lanes(UpperHalvesOfTwice(half, b)), Lanes(plain::UpperHalvesOfTwice(half, b)));
    const Ints first = random.Four();
    const Ints last = random.Four();
    ASSERT_EQ(Lanes(Narrowed(first, last)), Lanes(plain::Narrowed(first, last)));
  }
}

TEST(Vectors, MovesOfLanesEqualTheirDefinitions) {
  Random random;
  const Shorts a = random.Eight();
  const Shorts b = random.Eight();
  const Ints four = random.Four();
  EXPECT_EQ(Lanes(Repeated<0>(a)), Lanes(plain::Repeated<0>(a)));
  EXPECT_EQ(Lanes(Repeated<1>(a)), Lanes(plain::Repeated<1>(a)));
  EXPECT_EQ(Lanes(Repeated<2>(a)), Lanes(plain::Repeated<2>(a)));
  EXPECT_EQ(Lanes(Repeated<3>(a)), Lanes(plain::Repeated<3>(a)));
  EXPECT_EQ(Lanes(Reversed(four)), Lanes(plain::Reversed(four)));
  EXPECT_EQ(Lanes(Without<1>(a)), Lanes(plain::Without<1>(a)));
  EXPECT_EQ(Lanes(Without<2>(a)), Lanes(plain::Without<2>(a)));
  EXPECT_EQ(Lanes(InterleavedFirst(a, b)), Lanes(plain::InterleavedFirst(a, b)));
  EXPECT_EQ(Lanes(InterleavedLast(a, b)), Lanes(plain::InterleavedLast(a, b)));
}

TEST(Vectors, LoadsAndStoresEqualTheirDefinitions) {
  Random random;
  for (int i = 0; i < kRounds; ++i) {
    alignas(16) std::array<std::int16_t, 8> values = Lanes(random.Eight());
    ASSERT_EQ(Lanes(Load(values.data())), values);
    const Shorts stored = random.Eight();
    Store(stored, values.data());
    ASSERT_EQ(values, Lanes(stored));

    std::array<std::uint8_t, 8> samples = {};
    std::array<std::uint8_t, 8> expected = {};
    const Shorts vector = random.Eight(-600, 600);
    StoreSamples(vector, samples.data());
    plain::StoreSamples(vector, expected.data());
    ASSERT_EQ(samples, expected);
    ASSERT_EQ(Lanes(LoadSamples(samples.data())), Lanes(plain::LoadSamples(samples.data())));
  }
}

TEST(Vectors, StoredPixelsEqualTheirDefinitionAndEndAfterOneMoreByte) {
  Random random;
  for (int i = 0; i < kRounds; ++i) {
    std::array<std::uint8_t, 26> pixels = {};
    std::array<std::uint8_t, 26> expected = {};
    const Shorts blue = random.Eight();
    const Shorts green = random.Eight(-600, 600);
    const Shorts red = random.Eight();
    StorePixels(blue, green, red, pixels.data());
    plain::StorePixels(blue, green, red, expected.data());
    pixels[24] = expected[24];
    ASSERT_EQ(pixels, expected);
  }
}

}  // namespace
}  // namespace vantorium::image::jpeg
