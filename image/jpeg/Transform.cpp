#include "image/jpeg/Transform.h"

#include <algorithm>

#ifdef __x86_64__
#include <emmintrin.h>
#endif

namespace vantorium::image::jpeg {
namespace {

// The library's transform does the columns first, which leaves two more bits than the samples have, then the rows. Its
// steps are sums, and products with constants of 13 bits behind the point, with one rounding at the end of each pass:
// so each pass is a product with a matrix of whole numbers, and a single row of it can be had alone.
constexpr int kFirstShift = 11;
constexpr int kSecondShift = 18;
constexpr int kMiddleSample = 128;

using Line = std::array<int, 8>;

constexpr Line EvenHalf(const Line& in) {
  const int z1 = (in[2] + in[6]) * 4433;
  const int low = z1 - in[6] * 15137;
  const int high = z1 + in[2] * 6270;
  const int sum = (in[0] + in[4]) * 8192;
  const int difference = (in[0] - in[4]) * 8192;
  return {sum + high, difference + low, difference - low, sum - high};
}

constexpr Line OddHalf(const Line& in) {
  const int z5 = (in[7] + in[3] + in[5] + in[1]) * 9633;
  const int z1 = (in[7] + in[1]) * -7373;
  const int z2 = (in[5] + in[3]) * -20995;
  const int z3 = (in[7] + in[3]) * -16069 + z5;
  const int z4 = (in[5] + in[1]) * -3196 + z5;
  return {in[1] * 12299 + z1 + z4, in[3] * 25172 + z2 + z3, in[5] * 16819 + z2 + z4, in[7] * 2446 + z1 + z3};
}

using Matrix = std::array<std::array<std::int16_t, 8>, 8>;

// What each of the eight values going in adds to each coming out.
constexpr Matrix MatrixOfPass() {
  Matrix matrix = {};
  for (std::size_t in = 0; in < 8; ++in) {
    Line unit = {};
    unit[in] = 1;
    const Line even = EvenHalf(unit);
    const Line odd = OddHalf(unit);
    for (std::size_t out = 0; out < 4; ++out) {
      matrix[out][in] = static_cast<std::int16_t>(even[out] + odd[out]);
      matrix[7 - out][in] = static_cast<std::int16_t>(even[out] - odd[out]);
    }
  }
  return matrix;
}

constexpr Matrix kMatrix = MatrixOfPass();

// Where each row or column goes: those of even numbers first.
constexpr std::size_t EvenFirst(std::size_t i) {
  return i % 2 * 4 + i / 2;
}

constexpr std::size_t PlaceOf(std::size_t row, std::size_t column) {
  return EvenFirst(row) / 2 * 16 + EvenFirst(column) * 2 + EvenFirst(row) % 2;
}

// The file goes along the diagonals, up and down by turns.
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

// The samples of a row, with nothing taken off beyond their range.
Line ExactRow(const Block& block, std::size_t row) {
  const auto& weights = kMatrix[row];
  Line middle = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += block.values[PlaceOf(i, column)] * weights[i];
    middle[column] = Descaled(sum, kFirstShift);
  }
  Line samples = {};
  for (std::size_t column = 0; column < 8; ++column) {
    int sum = 0;
    for (std::size_t i = 0; i < 8; ++i) sum += middle[i] * kMatrix[column][i];
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

#ifdef __x86_64__

namespace {

// For each of the upper four rows, the weights of two rows of a block at a time, as the instruction wants them that
// adds two products. And for each two values of a line, their weights in the first four samples: those in the last four
// are the same from right to left, where the values of odd columns count negative.
struct alignas(16) Weights {
  std::int16_t first[4][4][8];
  std::int16_t second[4][8];
};

constexpr Weights WeightsOfPasses() {
  constexpr std::size_t kPairs[4][2] = {{0, 2}, {4, 6}, {1, 3}, {5, 7}};
  Weights weights = {};
  for (std::size_t pair = 0; pair < 4; ++pair) {
    for (std::size_t i = 0; i < 8; ++i) {
      const std::size_t in = kPairs[pair][i % 2];
      for (std::size_t out = 0; out < 4; ++out) weights.first[out][pair][i] = kMatrix[out][in];
      weights.second[pair][i] = kMatrix[i / 2][in];
    }
  }
  return weights;
}

constexpr Weights kWeights = WeightsOfPasses();

__m128i Load(const std::int16_t* values) {
  return _mm_load_si128(reinterpret_cast<const __m128i*>(values));
}

__m128i DescaledToShort(__m128i left, __m128i right, int shift) {
  return _mm_packs_epi32(_mm_srai_epi32(left, shift), _mm_srai_epi32(right, shift));
}

// What the even rows of a block give to a row of samples and to its mirror, and what the odd ones give to the row; to
// the mirror they give as much less.
struct FirstPass {
  FirstPass(const Block& block, int row) {
    const auto product = [&](std::size_t pair, std::size_t half) {
      return _mm_madd_epi16(Load(block.values.data() + 16 * pair + 8 * half), Load(kWeights.first[row][pair]));
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
    return _mm_madd_epi16(pair, Load(kWeights.second[number]));
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
