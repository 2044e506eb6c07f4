#include "image/jpeg/Transform.h"

#include <algorithm>

#ifdef __x86_64__
#include <emmintrin.h>
#endif

namespace vantorium::jpeg {
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
Line ExactRow(const Block& block, int row) {
  const auto& weights = kMatrix[static_cast<std::size_t>(row)];
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

void TransformRowPlainly(const Block& block, int row, std::uint8_t* samples) {
  for (const int sample : ExactRow(block, row)) {
    *samples++ = static_cast<std::uint8_t>(std::clamp(sample + kMiddleSample, 0, 255));
  }
}

bool IsTame(const Block& block, int row) {
  const Line samples = ExactRow(block, row);
  return std::all_of(samples.begin(), samples.end(), [](int sample) { return sample >= -512 && sample < 512; });
}

#ifdef __x86_64__

namespace {

// For each row, the weights of two rows of a block at a time, as the instruction wants them that adds two products. And
// for each two values of a line, their weights in the first four samples: those in the last four are the same from
// right to left, where the values of odd columns count negative.
struct alignas(16) Weights {
  std::int16_t first[8][4][8];
  std::int16_t second[4][8];
};

constexpr Weights WeightsOfPasses() {
  constexpr std::size_t kPairs[4][2] = {{0, 2}, {4, 6}, {1, 3}, {5, 7}};
  Weights weights = {};
  for (std::size_t pair = 0; pair < 4; ++pair) {
    for (std::size_t i = 0; i < 8; ++i) {
      const std::size_t in = kPairs[pair][i % 2];
      for (std::size_t out = 0; out < 8; ++out) weights.first[out][pair][i] = kMatrix[out][in];
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

__m128i FirstPass(const Block& block, int row) {
  __m128i left = _mm_set1_epi32(1 << (kFirstShift - 1));
  __m128i right = left;
  for (std::size_t pair = 0; pair < 4; ++pair) {
    const __m128i weights = Load(kWeights.first[row][pair]);
    left = _mm_add_epi32(left, _mm_madd_epi16(Load(block.values.data() + 16 * pair), weights));
    right = _mm_add_epi32(right, _mm_madd_epi16(Load(block.values.data() + 16 * pair + 8), weights));
  }
  return DescaledToShort(left, right, kFirstShift);
}

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

}  // namespace

void Clear(Block& block) {
  for (std::size_t i = 0; i < block.values.size(); i += 8) {
    _mm_store_si128(reinterpret_cast<__m128i*>(block.values.data() + i), _mm_setzero_si128());
  }
}

void TransformRow(const Block& block, int row, std::uint8_t* samples) {
  const __m128i values = _mm_add_epi16(SecondPass(FirstPass(block, row)), _mm_set1_epi16(kMiddleSample));
  _mm_storel_epi64(reinterpret_cast<__m128i*>(samples), _mm_packus_epi16(values, values));
}

#else

void Clear(Block& block) {
  block.values = {};
}

void TransformRow(const Block& block, int row, std::uint8_t* samples) {
  TransformRowPlainly(block, row, samples);
}

#endif

}  // namespace vantorium::jpeg
