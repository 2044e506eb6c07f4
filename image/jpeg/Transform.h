#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace vantorium::image::jpeg {

/// The 64 dequantized coefficients of a block. The rows are interleaved in pairs: column 0 of the first and the second
/// row, column 1 of both, and so on.
struct alignas(16) Block {
  std::array<std::int16_t, 64> values;
};

/// The index in a Block of coefficient `k` in zigzag order.
extern const std::array<std::uint8_t, 64> kPlaceInBlock;
/// The index in a block stored row by row.
extern const std::array<std::uint8_t, 64> kRowMajorPlace;

// Limits for the sum of the absolute coefficients of a block. Up to kTameSum all of libjpeg-turbo's routines give the
// same samples. Up to kMostSum 16-bit arithmetic does not overflow, but samples may lie so far outside their range that
// the routines for different processors clamp them differently; IsTame tells. Above it any of them may overflow.
inline constexpr int kTameSum = 2100;
inline constexpr int kMostSum = 5900;

/// Sets all coefficients to 0.
void Clear(Block& block);
/// Sets coefficient `k` in zigzag order, dequantized, and returns its absolute value.
[[nodiscard]] inline int Put(Block& block, std::size_t k, int coefficient) {
  block.values[kPlaceInBlock[k]] = static_cast<std::int16_t>(coefficient);
  return std::abs(coefficient);
}
/// Writes the 8 samples of each row whose bit is set in `rows`; the lowest bit is the top row. Equals libjpeg-turbo's
/// accurate integer transform for sums up to kMostSum. The row i begins at `samples + i * stride`.
void TransformRows(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride);
/// Returns a row of samples from -128 to 127, not clamped to that range, without vectors.
[[nodiscard]] std::array<int, 8> ExactRow(const Block& block, std::size_t row);
/// Whether all of libjpeg-turbo's routines agree about the samples of these rows.
[[nodiscard]] bool IsTame(const Block& block, unsigned rows);
/// Transforms the rows if all of libjpeg-turbo's routines agree about them. `sum` is that of the absolute coefficients.
[[nodiscard]] bool TransformIfTame(const Block& block, int sum, unsigned rows, std::uint8_t* samples,
                                   std::size_t stride);

}  // namespace vantorium::image::jpeg
