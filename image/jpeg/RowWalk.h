#pragma once

#include "image/jpeg/Plane.h"
#include "image/jpeg/Transform.h"

#include <array>
#include <cstddef>

namespace vantorium::image::jpeg {

/// The properties of a component that its scans need, and its samples.
struct Component {
  Plane plane;
  std::array<int, 64> steps;  ///< the quantization table in zigzag order; each step is at most 255
  std::size_t blocksPerRow;   ///< that have samples of the picture; the MCUs may have more
  std::size_t blockRows;
};

/// Decodes the wanted samples of a picture, one row of MCUs at a time.
class RowWalk {
 public:
  RowWalk() = default;
  virtual ~RowWalk() = default;
  RowWalk(const RowWalk&) = delete;
  RowWalk& operator=(const RowWalk&) = delete;

  /// Decodes the row `row` of MCUs, which must be the next one. Returns false if the data are unusual, at the last row
  /// at the latest; the rows decoded until then are right nevertheless.
  [[nodiscard]] virtual bool PassRow(std::size_t row) = 0;
  [[nodiscard]] virtual const Plane& PlaneOf(std::size_t component) const = 0;
};

}  // namespace vantorium::image::jpeg
