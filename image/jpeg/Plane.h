#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantorium::image::jpeg {

/// How the blocks of a scan are grouped: the groups follow one another from left to right in rows from the top.
struct GroupGrid {
  std::size_t groupsInRow;
  std::size_t rows;
};

/// The samples of one component, as far as they are wanted, of the last two rows of groups that were decoded.
class Plane {
 public:
  /// Each group has `across` times `down` blocks of the component.
  Plane(const GroupGrid& grid, std::size_t across, std::size_t down)
      : across_(across),
        down_(down),
        stride_(grid.groupsInRow * across * 8),
        wantedColumns_(grid.groupsInRow * across),
        wantedRows_(grid.rows * down),
        samples_(stride_ * down * 16 + kRoom) {}

  void WantColumn(std::size_t column) { wantedColumns_[column / 8] = 1; }
  void WantRow(std::size_t row) {
    wantedRows_[row / 8] = static_cast<std::uint8_t>(wantedRows_[row / 8] | 1U << row % 8);
  }

  [[nodiscard]] std::size_t Across() const { return across_; }
  [[nodiscard]] std::size_t Down() const { return down_; }
  [[nodiscard]] std::size_t Stride() const { return stride_; }
  /// For each column of blocks whether a sample of it is wanted.
  [[nodiscard]] const std::uint8_t* WantedColumns() const { return wantedColumns_.data(); }
  /// Which rows of a row of blocks are wanted, the top one in the lowest bit.
  [[nodiscard]] unsigned WantedRows(std::size_t blockRow) const { return wantedRows_[blockRow]; }
  /// The row of groups that a row of samples lies in.
  [[nodiscard]] std::size_t GroupRowOf(std::size_t row) const { return row / (8 * down_); }
  [[nodiscard]] std::uint8_t* Row(std::size_t row) { return samples_.data() + row % (16 * down_) * stride_; }
  [[nodiscard]] const std::uint8_t* Row(std::size_t row) const {
    return samples_.data() + row % (16 * down_) * stride_;
  }

 private:
  static constexpr std::size_t kRoom = 8;  // what is read at a time may reach behind the last row

  std::size_t across_;
  std::size_t down_;
  std::size_t stride_;
  std::vector<std::uint8_t> wantedColumns_;
  std::vector<std::uint8_t> wantedRows_;
  std::vector<std::uint8_t> samples_;
};

}  // namespace vantorium::image::jpeg
