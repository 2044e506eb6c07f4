#pragma once

#include "image/jpeg/RowWalk.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vantorium::image::jpeg {

/// The coefficients of a component as far as scans have been read: which ones of each block are not 0, and the values
/// of blocks with wanted samples.
class Coefficients {
 public:
  /// `component` knows its wanted samples.
  explicit Coefficients(const Component& component);

  /// A row of blocks.
  struct Row {
    std::uint64_t* notZero;      ///< a bit for each AC coefficient of a block in zigzag order, the first one lowest
    const std::uint32_t* slots;  ///< where the values of a block are; kUnwanted if they are not kept
    std::int16_t* values;        ///< null if no block of the row is wanted

    /// Returns the values of a block in zigzag order, or null. Only values that are not 0 are set, and the
    /// DC coefficient once its first scan was read.
    [[nodiscard]] std::int16_t* ValuesOf(std::size_t column) const {
      return values == nullptr || slots[column] == kUnwanted ? nullptr : values + std::size_t{64} * slots[column];
    }
  };
  [[nodiscard]] Row RowOf(std::size_t blockRow);

 private:
  static constexpr std::uint32_t kUnwanted = 0xFFFFFFFF;

  std::size_t blocksPerRow_;
  std::size_t wantedPerRow_ = 0;
  std::vector<std::uint64_t> notZero_;
  std::vector<std::uint32_t> columnSlots_;
  std::vector<std::uint32_t> rowSlots_;
  std::unique_ptr<std::int16_t[]> values_;
};

}  // namespace vantorium::image::jpeg
