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

/// The Huffman codes of DC and AC coefficients.
struct CodeTables {
  ValueTable dc;
  ValueTable ac;
  SkipTable acSkip;
};

/// What decoding a component needs, and its samples.
struct ScanComponent {
  Plane plane;
  std::array<int, 64> steps;                ///< the quantization table in zigzag order; each step is at most 255
  std::shared_ptr<const CodeTables> codes;  ///< shared by components that use the same tables of the file
  unsigned prediction = 0;                  ///< of the DC coefficient; wraps
};

/// Decodes a scan, one row of MCUs at a time, into the wanted samples. Stops at anything unusual in the data; the rows
/// decoded until then are right nevertheless.
class ScanWalk {
 public:
  ScanWalk(ScanData data, MCUGrid grid, unsigned restartInterval, std::vector<ScanComponent> components);

  [[nodiscard]] std::size_t RowsPassed() const { return rowsPassed_; }
  /// Decodes the next row of MCUs. Returns false if the data are unusual; after the last row they must end at the end
  /// marker.
  [[nodiscard]] bool PassRow();
  [[nodiscard]] const Plane& PlaneOf(std::size_t component) const { return components_[component].plane; }

 private:
  struct Lane;

  [[nodiscard]] std::vector<Lane> LanesOfRow();
  [[nodiscard]] bool PassMCU(BitWindow& window, const std::vector<Lane>& lanes, std::size_t mcu);
  [[nodiscard]] BitWindow Extended(BitWindow window);
  [[nodiscard]] bool EndsSegment(BitWindow window, unsigned marker);
  [[nodiscard]] bool PassRestart(BitWindow window);

  ScanData data_;
  MCUGrid grid_;
  unsigned restartInterval_;
  std::vector<ScanComponent> components_;
  BitWindow window_;
  const std::uint8_t* limit_;  // an MCU that begins before it has all its data in the buffer
  std::size_t rowsPassed_ = 0;
  unsigned untilRestart_;
  unsigned restarts_ = 0;
};

}  // namespace vantorium::image::jpeg
