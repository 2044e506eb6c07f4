#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantorium::image::jpeg {

/// The MCUs of a scan, in rows from the top.
struct MCUGrid {
  std::size_t perRow;
  std::size_t rows;
};

/// The wanted samples of one component. Keeps those of the last two rows of MCUs that were decoded.
class Plane {
 public:
  /// An MCU has `across` times `down` blocks of this component.
  Plane(const MCUGrid& grid, std::size_t across, std::size_t down)
      : across_(across),
        down_(down),
        stride_(grid.perRow * across * 8),
        wantedColumns_(grid.perRow * across),
        wantedRows_(grid.rows * down),
        samples_(stride_ * down * 16 + kRoom) {}

  void WantColumn(std::size_t column) { wantedColumns_[column / 8] = 1; }
  void WantRow(std::size_t row) {
    wantedRows_[row / 8] = static_cast<std::uint8_t>(wantedRows_[row / 8] | 1U << row % 8);
  }

  [[nodiscard]] std::size_t Across() const { return across_; }
  [[nodiscard]] std::size_t Down() const { return down_; }
  [[nodiscard]] std::size_t Stride() const { return stride_; }
  [[nodiscard]] std::size_t BlocksPerRow() const { return wantedColumns_.size(); }
  [[nodiscard]] std::size_t BlockRows() const { return wantedRows_.size(); }
  /// For each column of blocks, whether any of its samples is wanted.
  [[nodiscard]] const std::uint8_t* WantedColumns() const { return wantedColumns_.data(); }
  /// The wanted rows of samples in a row of blocks: a bit each, the top row in the lowest.
  [[nodiscard]] unsigned WantedRows(std::size_t blockRow) const { return wantedRows_[blockRow]; }
  /// The row of MCUs that contains a row of samples.
  [[nodiscard]] std::size_t MCURowOf(std::size_t row) const { return row / (8 * down_); }
  [[nodiscard]] std::uint8_t* Row(std::size_t row) { return samples_.data() + row % (16 * down_) * stride_; }
  [[nodiscard]] const std::uint8_t* Row(std::size_t row) const {
    return samples_.data() + row % (16 * down_) * stride_;
  }

 private:
  static constexpr std::size_t kRoom = 8;  // vector loads may read beyond the last row

  std::size_t across_;
  std::size_t down_;
  std::size_t stride_;
  std::vector<std::uint8_t> wantedColumns_;
  std::vector<std::uint8_t> wantedRows_;
  std::vector<std::uint8_t> samples_;
};

}  // namespace vantorium::image::jpeg
