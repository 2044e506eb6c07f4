#pragma once

#include "image/jpeg/HuffmanTables.h"
#include "image/jpeg/Plane.h"
#include "image/jpeg/ScanData.h"
#include "image/jpeg/Transform.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace vantorium::image::jpeg {

/// A component on its way through the scan.
struct ScanComponent {
  Plane plane;
  std::array<int, 64> steps;  ///< the quantization table, at most 255, in the order of the file
  std::shared_ptr<const ValueTable> first;
  std::shared_ptr<const ValueTable> others;
  std::shared_ptr<const SkipTable> skipped;
  unsigned prediction = 0;  ///< of the first coefficient; wraps
};

/// Walks through the blocks of a scan, row of groups after row of groups, and makes the wanted samples. Whatever is not
/// as it is in nearly every file ends it; the samples made so far are right all the same.
class ScanWalk {
 public:
  ScanWalk(ScanData data, GroupGrid grid, unsigned restartInterval, std::vector<ScanComponent> components);

  [[nodiscard]] std::size_t RowsPassed() const { return rowsPassed_; }
  /// Goes through the next row of groups. Behind the last one the data must end as they should.
  [[nodiscard]] bool PassRow();
  [[nodiscard]] const Plane& PlaneOf(std::size_t component) const { return components_[component].plane; }

 private:
  struct Lane;

  [[nodiscard]] std::vector<Lane> LanesOfRow();
  [[nodiscard]] bool PassGroup(BitWindow& window, const std::vector<Lane>& lanes, std::size_t group);
  [[nodiscard]] BitWindow Extended(BitWindow window);
  [[nodiscard]] bool EndsSegment(BitWindow window, unsigned marker);
  [[nodiscard]] bool PassRestart(BitWindow window);

  ScanData data_;
  GroupGrid grid_;
  unsigned restartInterval_;
  std::vector<ScanComponent> components_;
  BitWindow window_;
  const std::uint8_t* limit_;  // a group that begins before it has all its data
  std::size_t rowsPassed_ = 0;
  unsigned groupsToRestart_;
  unsigned restarts_ = 0;
};

}  // namespace vantorium::image::jpeg
