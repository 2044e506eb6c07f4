#include "image/jpeg/Transform.h"

#include "image/jpeg/Vectors.h"

#include <algorithm>

namespace vantorium::image::jpeg {
namespace {

// libjpeg-turbo transforms the columns first, to values with two fractional bits, and then the rows. A pass consists of
// sums and of products with constants that have 13 fractional bits, and rounds once, at its end. So each pass equals a
// product with an integer matrix, of which single rows can be computed.
constexpr int kFirstShift = 11;
constexpr int kSecondShift = 18;
constexpr int kMiddleSample = 128;

// The weights of the eight input values in the first four output values, with 13 fractional bits. The other four have
// the same weights in reverse order, negated for the input values of odd numbers. These are sums of libjpeg-turbo's
// rounded constants, so some of them are off by one.
constexpr int kWeights[4][8] = {{8192, 11363, 10703, 9633, 8192, 6437, 4433, 2260},
                                {8192, 9633, 4433, -2259, -8192, -11362, -10704, -6436},
                                {8192, 6437, -4433, -11362, -8192, 2261, 10704, 9633},
                                {8192, 2260, -10703, -6436, 8192, 9633, -4433, -11363}};

constexpr int WeightOf(std::size_t in, std::size_t out) {
  if (out < 4) return kWeights[out][in];
  return in % 2 == 0 ? kWeights[7 - out][in] : -kWeights[7 - out][in];
}

// The position of a row or column when the even ones come first.
constexpr std::size_t EvenFirst(std::size_t i) {
  return i % 2 * 4 + i / 2;
}

constexpr std::size_t PlaceOf(std::size_t row, std::size_t column) {
  return EvenFirst(row) / 2 * 16 + EvenFirst(column) * 2 + EvenFirst(row) % 2;
}

// Applies `place` to the coefficients in zigzag order.
template <typename Place>
constexpr std::array<std::uint8_t, 64> InFileOrder(Place place) {
  std::array<std::uint8_t, 64> places = {};
  std::size_t k = 0;
  for (std::size_t diagonal = 0; diagonal < 15; ++diagonal) {
    for (std::size_t step = 0; step <= diagonal; ++step) {
      const std::size_t row = diagonal % 2 == 0 ? diagonal - step : step;
      const std::size_t column = diagonal - row;
      if (row < 8 && column < 8) places[k++] = static_cast<std::uint8_t>(place(row, column));
    }
  }
  return places;
}

int Descaled(int value, int shift) {
  return (value + (1 << (shift - 1))) >> shift;
}

// The weights as operands of SumsOfProducts. `first`: for each of the upper four rows of samples, the weights of a pair
// of rows of the block. `second`: for each pair of values of a line, their weights in the first four samples. The last
// four have the same weights from right to left, negated for odd columns.
struct alignas(16) PairedWeights {
  std::int16_t first[4][4][8];
  std::int16_t second[4][8];
};

constexpr PairedWeights PairWeights() {
  constexpr std::size_t kPairs[4][2] = {{0, 2}, {4, 6}, {1, 3}, {5, 7}};
  PairedWeights paired = {};
  for (std::size_t pair = 0; pair < 4; ++pair) {
    for (std::size_t i = 0; i < 8; ++i) {
      const std::size_t in = kPairs[pair][i % 2];
      for (std::size_t out = 0; out < 4; ++out)
        paired.first[out][pair][i] = static_cast<std::int16_t>(kWeights[out][in]);
      paired.second[pair][i] = static_cast<std::int16_t>(kWeights[i / 2][in]);
    }
  }
  return paired;
}

constexpr PairedWeights kPairedWeights = PairWeights();

// The sums over the even and over the odd rows of a block for one row of samples. The mirrored row, 7 - `row`, is their
// difference.
struct FirstPass {
  FirstPass(const Block& block, int row) {
    const auto product = [&](std::size_t pair, std::size_t half) {
      return SumsOfProducts(Load(block.values.data() + 16 * pair + 8 * half), Load(kPairedWeights.first[row][pair]));
    };
    for (std::size_t half = 0; half < 2; ++half) {
      even[half] = product(0, half) + product(1, half) + FourTimes(1 << (kFirstShift - 1));
      odd[half] = product(2, half) + product(3, half);
    }
  }
  [[nodiscard]] Shorts Row() const {
    return Narrowed((even[0] + odd[0]) >> kFirstShift, (even[1] + odd[1]) >> kFirstShift);
  }
  [[nodiscard]] Shorts Mirror() const {
    return Narrowed((even[0] - odd[0]) >> kFirstShift, (even[1] - odd[1]) >> kFirstShift);
  }

  Ints even[2];
  Ints odd[2];
};

Shorts SecondPass(Shorts line) {
  const auto product = [](Shorts pair, std::size_t number) {
    return SumsOfProducts(pair, Load(kPairedWeights.second[number]));
  };
  const Ints even = product(Repeated<0>(line), 0) + product(Repeated<1>(line), 1) + FourTimes(1 << (kSecondShift - 1));
  const Ints odd = product(Repeated<2>(line), 2) + product(Repeated<3>(line), 3);
  return Narrowed((even + odd) >> kSecondShift, Reversed(even - odd) >> kSecondShift);
}

void WriteRow(Shorts line, std::uint8_t* samples) {
  StoreSamples(SecondPass(line) + EightTimes(kMiddleSample), samples);
}

}  // namespace

const std::array<std::uint8_t, 64> kPlaceInBlock = InFileOrder(PlaceOf);
const std::array<std::uint8_t, 64> kRowMajorPlace =
    InFileOrder([](std::size_t row, std::size_t column) { return 8 * row + column; });

// The compiler's own code for this takes much longer.
void Clear(Block& block) {
  for (std::size_t i = 0; i < block.values.size(); i += 8) Store(EightTimes(0), block.values.data() + i);
}

void TransformRows(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  for (unsigned row = 0; row < 4; ++row) {
    const unsigned mirror = 7 - row;
    if ((rows & (1U << row | 1U << mirror)) == 0) continue;
    const FirstPass pass(block, static_cast<int>(row));
    if ((rows & 1U << row) != 0) WriteRow(pass.Row(), samples + row * stride);
    if ((rows & 1U << mirror) != 0) WriteRow(pass.Mirror(), samples + mirror * stride);
  }
}

std::array<int, 8> ExactRow(const Block& block, std::size_t row) {
  std::array<int, 8> middle = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += block.values[PlaceOf(i, column)] * WeightOf(i, row);
    middle[column] = Descaled(sum, kFirstShift);
  }
  std::array<int, 8> samples = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += middle[i] * WeightOf(i, column);
    samples[column] = Descaled(sum, kSecondShift);
  }
  return samples;
}

bool IsTame(const Block& block, unsigned rows) {
  for (unsigned row = 0; row < 8; ++row) {
    if ((rows >> row & 1) == 0) continue;
    const auto isTame = [](int sample) { return sample >= -512 && sample < 512; };
    if (!std::ranges::all_of(ExactRow(block, row), isTame)) return false;
  }
  return true;
}

bool TransformIfTame(const Block& block, int sum, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  if (sum > kMostSum || (sum > kTameSum && !IsTame(block, rows))) return false;
  TransformRows(block, rows, samples, stride);
  return true;
}

}  // namespace vantorium::image::jpeg
