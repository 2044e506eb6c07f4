#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// The 64 coefficients of a block, multiplied by their steps. Each two rows lie interleaved: column 0 of the first and
/// of the second, column 1 of both, and so on.
struct alignas(16) Block {
  std::array<std::int16_t, 64> values;
};

/// Where in a block the coefficient is that comes as number `k` in the file.
extern const std::array<std::uint8_t, 64> kPlaceInBlock;
/// The same in a block whose rows lie one behind the other.
extern const std::array<std::uint8_t, 64> kRowMajorPlace;

// The sum of the absolute coefficients of a block tells what the arithmetic of 16 bits can do to it. Up to the first of
// these sums nothing happens at all. Up to the second the transform is exact, but samples may come out so far off their
// range that the library's routines for different processors disagree about them; above it all of them may overflow.
inline constexpr int kTameSum = 2100;
inline constexpr int kMostSum = 5900;

/// Sets all coefficients to 0.
void Clear(Block& block);
/// Writes 8 samples for each row of the block that has its bit in `rows`, the top one in the lowest bit: the library's
/// accurate integer transform. The rows lie `stride` bytes apart, wanted or not.
void TransformRows(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride);
/// The same in plain C++, for processors without a routine of their own.
void TransformRowsPlainly(const Block& block, unsigned rows, std::uint8_t* samples, std::size_t stride);
/// Whether all routines of the library agree about the samples of those rows.
[[nodiscard]] bool IsTame(const Block& block, unsigned rows);

}  // namespace vantorium::image::jpeg
