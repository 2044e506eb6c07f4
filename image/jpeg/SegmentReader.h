#pragma once

#include "image/jpeg/Bits.h"
#include "image/jpeg/ScanData.h"

#include <cstdint>

namespace vantorium::image::jpeg {

/// Keeps the bits of a scan coming, one MCU after the other, from one restart marker to the next. The caller holds the
/// window, so that it stays in registers.
class SegmentReader {
 public:
  SegmentReader(ScanData data, unsigned restartInterval);

  /// Returns a window on the first bits of a scan, which the data have reached.
  [[nodiscard]] BitWindow BeginScan();
  /// Counts an MCU. Returns whether a restart marker must come before it; PassRestart then moves the window past it,
  /// and returns false if there is another marker or none.
  [[nodiscard]] bool RestartIsDue() { return restartInterval_ != 0 && untilRestart_-- == 0; }
  [[nodiscard]] bool PassRestart(BitWindow& window);
  /// Makes sure that all bits of the next MCU are there to be read. Returns false if the data ended before it.
  [[nodiscard]] bool HasMCU(BitWindow& window) { return window.Next() < limit_ || Extend(window); }
  /// Returns whether no more bits were read than there are. HasMCU does not check the end of the MCU before.
  [[nodiscard]] bool HoldsAllOf(const BitWindow& window) const { return window.BitsBefore(data_.End()) >= 0; }
  /// Returns whether the data end here, except for the bits that fill the last byte. Marker() then is what follows.
  [[nodiscard]] bool EndsScan(BitWindow window);
  [[nodiscard]] unsigned Marker() const { return data_.Marker(); }

  /// The data after the marker that ends a scan.
  [[nodiscard]] ScanData& Data() { return data_; }

 private:
  [[nodiscard]] bool Extend(BitWindow& window);

  ScanData data_;
  unsigned restartInterval_;
  unsigned untilRestart_ = 0;
  unsigned restarts_ = 0;
  const std::uint8_t* limit_ = nullptr;  // an MCU that begins before it has all its data in the buffer
};

}  // namespace vantorium::image::jpeg
