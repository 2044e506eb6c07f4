#include "image/ResamplePlan.h"

#include "image/VectorClones.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>

namespace vantorium::image {
namespace {

static_assert(FLT_EVAL_METHOD == 0, "Roundings must happen where they are written");

// Columns are processed in pieces of this many pixels, which stay in the L1 cache.
constexpr std::size_t kPiece = 128;

struct Place {
  std::int32_t index;
  float weight;
};

// Positions approach the last source pixel from below. Only with millions of new pixels can rounding to float reach it.
Place PlaceOf(float scale, std::int32_t position, std::int32_t side) {
  const auto exact = static_cast<float>(static_cast<double>(scale) * position);
  const float whole = std::floor(exact);
  return {std::min(static_cast<std::int32_t>(whole), side - 1), exact - whole};
}

float ScaleOf(std::int32_t from, std::int32_t to) {
  return static_cast<float>((from - 1) / static_cast<double>(to));
}

// Adding 1.5 * 2^52 leaves no bits for a fraction, and the processor rounds ties to even.
inline double Rounded(double value) {
  constexpr double kNoFraction = 6755399441055744.0;
  return (value + kNoFraction) - kNoFraction;
}

// The neighbours of a piece of new bytes: those in the left column, then those in the right. Each ends in one spare
// byte, since pixels are copied four bytes at a time.
struct Neighbours {
  std::uint8_t left[3 * kPiece + 1];
  std::uint8_t right[3 * kPiece + 1];
};

// The same, interpolated between two rows and rounded.
struct Means {
  double left[3 * kPiece];
  double right[3 * kPiece];
};

VANTORIUM_VECTOR_CLONES
void BlendRows(const std::uint8_t* lower, const std::uint8_t* upper, float upperWeight, double* __restrict means) {
  const double up = upperWeight;
  const double down = 1 - up;
  for (std::size_t i = 0; i < 3 * kPiece; ++i) means[i] = Rounded(down * lower[i] + up * upper[i]);
}

// A mean of bytes is a byte, so no clamping is needed.
VANTORIUM_VECTOR_CLONES
void BlendColumns(const Means& means, const float* rightWeights, std::size_t count, std::uint8_t* __restrict result) {
  for (std::size_t i = 0; i < count; ++i) {
    const double share = rightWeights[i];
    const double mean = Rounded((1 - share) * means.left[i] + share * means.right[i]);
    result[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(mean));
  }
}

}  // namespace

ResamplePlan::ResamplePlan(PictureSize from, PictureSize to)
    : from_(from), to_(to), yScale_(ScaleOf(from.height, to.height)) {
  if (from == to) return;
  const float xScale = ScaleOf(from.width, to.width);
  leftBytes_.reserve(static_cast<std::size_t>(to.width));
  rightWeights_.reserve(static_cast<std::size_t>(to.width) * 3);
  for (std::int32_t x = 0; x < to.width; ++x) {
    const Place place = PlaceOf(xScale, x, from.width);
    leftBytes_.push_back(3 * place.index);
    // Both neighbours and the byte after them are in the row.
    if (3 * place.index + 7 <= 3 * from.width) roomyColumns_ = leftBytes_.size();
    rightWeights_.insert(rightWeights_.end(), 3, place.weight);
  }
}

ResamplePlan::SourceRows ResamplePlan::RowsOf(std::int32_t newRow) const {
  if (from_ == to_) return {newRow, newRow, 0};
  const Place place = PlaceOf(yScale_, newRow, from_.height);
  const bool alone = place.weight == 0 || place.index + 1 == from_.height;
  return {place.index, place.index + (alone ? 0 : 1), alone ? 0 : place.weight};
}

void ResamplePlan::MarkSource(WantedPixels& pixels) const {
  if (from_ == to_) std::fill(pixels.columns.begin(), pixels.columns.end(), std::uint8_t{1});
  for (const std::int32_t byte : leftBytes_) {
    const std::int32_t left = byte / 3;
    for (const std::int32_t x : {left, std::min(left + 1, from_.width - 1)}) {
      pixels.columns[static_cast<std::size_t>(x)] = 1;
    }
  }
  for (std::int32_t newRow = 0; newRow < to_.height; ++newRow) {
    const SourceRows rows = RowsOf(newRow);
    for (const std::int32_t y : {rows.lower, rows.upper}) {
      pixels.rows[static_cast<std::size_t>(from_.height - 1 - y)] = 1;
    }
  }
}

void ResamplePlan::GatherColumns(const std::uint8_t* row, std::size_t first, std::size_t count, std::uint8_t* left,
                                 std::uint8_t* right) const {
  const std::int32_t* begins = leftBytes_.data() + first;
  const std::size_t roomy = std::clamp(roomyColumns_, first, first + count) - first;
  for (std::size_t i = 0; i < roomy; ++i) {
    std::memcpy(left + 3 * i, row + begins[i], 4);
    std::memcpy(right + 3 * i, row + begins[i] + 3, 4);
  }
  const std::int32_t last = 3 * (from_.width - 1);
  for (std::size_t i = roomy; i < count; ++i) {
    std::memcpy(left + 3 * i, row + begins[i], 3);
    std::memcpy(right + 3 * i, row + std::min(begins[i] + 3, last), 3);
  }
}

void ResamplePlan::CombineRows(const SourceRows& rows, const std::uint8_t* lower, const std::uint8_t* upper,
                               std::uint8_t* result) const {
  const auto width = static_cast<std::size_t>(to_.width);
  if (from_ == to_) {
    std::memcpy(result, lower, 3 * width);
    return;
  }
  Neighbours ofLower = {};
  Neighbours ofUpper = {};
  Means means;
  for (std::size_t x = 0; x < width; x += kPiece) {
    const std::size_t count = std::min(kPiece, width - x);
    GatherColumns(lower, x, count, ofLower.left, ofLower.right);
    GatherColumns(upper, x, count, ofUpper.left, ofUpper.right);
    BlendRows(ofLower.left, ofUpper.left, rows.weight, means.left);
    BlendRows(ofLower.right, ofUpper.right, rows.weight, means.right);
    BlendColumns(means, rightWeights_.data() + 3 * x, 3 * count, result + 3 * x);
  }
}

}  // namespace vantorium::image
