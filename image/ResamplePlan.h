#pragma once

#include "image/WantedPixels.h"

#include <cstdint>
#include <vector>

namespace vantorium::image {

/// Width and height in pixels.
struct PictureSize {
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool operator==(const PictureSize&) const = default;
};

/// Resizes a picture: determines which source rows each new row is made of, and combines them. No other source rows are
/// needed, so a decoder may skip them. Rows are counted from the bottom.
///
/// The interpolation is bilinear: between two rows, rounded, then between two columns, rounded, ties to even. Both
/// pictures are anchored at their bottom left corner. Equal sizes give a plain copy.
class ResamplePlan {
 public:
  /// All sides must be at least 1.
  ResamplePlan(PictureSize from, PictureSize to);

  /// The source rows of one new row. `upper` is the row above `lower`, or `lower` itself when its weight is 0.
  struct SourceRows {
    std::int32_t lower;
    std::int32_t upper;
    float weight;  ///< share of the upper row, 0 to below 1
  };
  [[nodiscard]] SourceRows RowsOf(std::int32_t newRow) const;

  /// Marks the source pixels that the new picture is made of.
  void MarkSource(WantedPixels& pixels) const;

  /// Writes the new row, 3 bytes per pixel without padding, to `result`. `lower` and `upper` are the bytes of the rows
  /// that `rows` names. May be called from several threads at once.
  void CombineRows(const SourceRows& rows, const std::uint8_t* lower, const std::uint8_t* upper,
                   std::uint8_t* result) const;

  [[nodiscard]] PictureSize NewSize() const { return to_; }

 private:
  void GatherColumns(const std::uint8_t* row, std::size_t first, std::size_t count, std::uint8_t* left,
                     std::uint8_t* right) const;

  PictureSize from_;
  PictureSize to_;
  float yScale_;
  std::vector<std::int32_t> leftBytes_;  // where the left neighbour of each new column begins
  std::size_t roomyColumns_ = 0;         // leading columns whose right neighbour is followed by another byte of the row
  std::vector<float> rightWeights_;      // share of the right neighbour, stored three times for each new column
};

}  // namespace vantorium::image
