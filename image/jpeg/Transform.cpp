#include "image/jpeg/Transform.h"

#include <algorithm>

#ifdef __x86_64__
#include <emmintrin.h>
#endif

namespace vantorium::image::jpeg {
namespace {

// libjpeg-turbo transforms the columns first, to values with two fractional bits, and then the rows. A pass consists of
// sums and of products with constants that have 13 fractional bits, and rounds once, at its end. So each pass equals a
// product with an integer matrix, of which single rows can be computed.
constexpr int kFirstShift = 11;
constexpr int kSecondShift = 18;
constexpr int kMiddleSample = 128;

using Line = std::array<int, 8>;

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

// The samples of a row, not yet clamped to their range.
Line ExactRow(const Block& block, std::size_t row) {
  Line middle = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += block.values[PlaceOf(i, column)] * WeightOf(i, row);
    middle[column] = Descaled(sum, kFirstShift);
  }
  Line samples = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += middle[i] * WeightOf(i, column);
    samples[column] = Descaled(sum, kSecondShift);
  }
  return samples;
}

}  // namespace

const std::array<std::uint8_t, 64> kPlaceInBlock = InFileOrder(PlaceOf);
const std::array<std::uint8_t, 64> kRowMajorPlace =
    InFileOrder([](std::size_t row, std::size_t column) { return 8 * row + column; });

void TransformRowsPlainly(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  for (unsigned row = 0; row < 8; ++row, samples += stride) {
    if ((rows >> row & 1) == 0) continue;
    const Line line = ExactRow(block, row);
    std::transform(line.begin(), line.end(), samples,
                   [](int sample) { return static_cast<std::uint8_t>(std::clamp(sample + kMiddleSample, 0, 255)); });
  }
}

bool IsTame(const Block& block, unsigned rows) {
  for (unsigned row = 0; row < 8; ++row) {
    if ((rows >> row & 1) == 0) continue;
    const Line line = ExactRow(block, row);
    if (!std::all_of(line.begin(), line.end(), [](int sample) { return sample >= -512 && sample < 512; })) return false;
  }
  return true;
}

bool TransformIfTame(const Block& block, int sum, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  if (sum > kMostSum || (sum > kTameSum && !IsTame(block, rows))) return false;
  TransformRows(block, rows, samples, stride);
  return true;
}

#ifdef __x86_64__

namespace {

// The weights as operands of the instruction that adds two products (pmaddwd). `first`: for each of the upper four rows
// of samples, the weights of a pair of rows of the block. `second`: for each pair of values of a line, their weights in
// the first four samples. The last four have the same weights from right to left, negated for odd columns.
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

__m128i Load(const std::int16_t* values) {
  return _mm_load_si128(reinterpret_cast<const __m128i*>(values));
}

__m128i DescaledToShort(__m128i left, __m128i right, int shift) {
  return _mm_packs_epi32(_mm_srai_epi32(left, shift), _mm_srai_epi32(right, shift));
}

// The sums over the even and over the odd rows of a block for one row of samples. The mirrored row, 7 - `row`, is their
// difference.
struct FirstPass {
  FirstPass(const Block& block, int row) {
    const auto product = [&](std::size_t pair, std::size_t half) {
      return _mm_madd_epi16(Load(block.values.data() + 16 * pair + 8 * half), Load(kPairedWeights.first[row][pair]));
    };
    for (std::size_t half = 0; half < 2; ++half) {
      const __m128i rounded = _mm_add_epi32(product(0, half), _mm_set1_epi32(1 << (kFirstShift - 1)));
      even[half] = _mm_add_epi32(rounded, product(1, half));
      odd[half] = _mm_add_epi32(product(2, half), product(3, half));
    }
  }
  [[nodiscard]] __m128i Row() const {
    return DescaledToShort(_mm_add_epi32(even[0], odd[0]), _mm_add_epi32(even[1], odd[1]), kFirstShift);
  }
  [[nodiscard]] __m128i Mirror() const {
    return DescaledToShort(_mm_sub_epi32(even[0], odd[0]), _mm_sub_epi32(even[1], odd[1]), kFirstShift);
  }

  __m128i even[2];
  __m128i odd[2];
};

__m128i SecondPass(__m128i line) {
  const auto product = [](__m128i pair, std::size_t number) {
    return _mm_madd_epi16(pair, Load(kPairedWeights.second[number]));
  };
  const __m128i even =
      _mm_add_epi32(product(_mm_shuffle_epi32(line, 0x00), 0), product(_mm_shuffle_epi32(line, 0x55), 1));
  const __m128i odd =
      _mm_add_epi32(product(_mm_shuffle_epi32(line, 0xAA), 2), product(_mm_shuffle_epi32(line, 0xFF), 3));
  const __m128i rounded = _mm_add_epi32(even, _mm_set1_epi32(1 << (kSecondShift - 1)));
  const __m128i right = _mm_shuffle_epi32(_mm_sub_epi32(rounded, odd), 0x1B);
  return DescaledToShort(_mm_add_epi32(rounded, odd), right, kSecondShift);
}

void Store(__m128i line, std::uint8_t* samples) {
  const __m128i values = _mm_add_epi16(SecondPass(line), _mm_set1_epi16(kMiddleSample));
  _mm_storel_epi64(reinterpret_cast<__m128i*>(samples), _mm_packus_epi16(values, values));
}

}  // namespace

// The compiler's own code for this takes much longer.
void Clear(Block& block) {
  for (std::size_t i = 0; i < block.values.size(); i += 8) {
    _mm_store_si128(reinterpret_cast<__m128i*>(block.values.data() + i), _mm_setzero_si128());
  }
}

void TransformRows(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  for (unsigned row = 0; row < 4; ++row) {
    const unsigned mirror = 7 - row;
    if ((rows & (1U << row | 1U << mirror)) == 0) continue;
    const FirstPass pass(block, static_cast<int>(row));
    if ((rows & 1U << row) != 0) Store(pass.Row(), samples + row * stride);
    if ((rows & 1U << mirror) != 0) Store(pass.Mirror(), samples + mirror * stride);
  }
}

#else

void Clear(Block& block) {
  block.values = {};
}

void TransformRows(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride) {
  TransformRowsPlainly(block, rows, samples, stride);
}

#endif

}  // namespace vantorium::image::jpeg
