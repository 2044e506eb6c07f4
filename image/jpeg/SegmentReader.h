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
  /// Moves the window to the next MCU, all of whose bits can then be read. Calls `restart` before it passes a restart
  /// marker. Returns false if `restart` does, if there is no or another marker, or if the data ended before the MCU.
  template <typename Restart>
  [[nodiscard]] bool BeginMCU(BitWindow& window, Restart restart) {
    if (restartInterval_ != 0 && untilRestart_-- == 0 && !(restart() && PassRestart(window))) return false;
    return window.Next() < limit_ || Extend(window);
  }
  /// Returns whether no more bits were read than there are. BeginMCU does not check the end of the MCU before.
  [[nodiscard]] bool HoldsAllOf(const BitWindow& window) const { return window.BitsBefore(data_.End()) >= 0; }
  /// Returns whether the data end here, except for the bits that fill the last byte. Marker() then is what follows.
  [[nodiscard]] bool EndsScan(BitWindow window);
  [[nodiscard]] int Marker() const { return data_.Marker(); }

  /// The data after the marker that ends a scan.
  [[nodiscard]] ScanData& Data() { return data_; }

 private:
  [[nodiscard]] bool PassRestart(BitWindow& window);
  [[nodiscard]] bool Extend(BitWindow& window);

  ScanData data_;
  unsigned restartInterval_;
  unsigned untilRestart_ = 0;
  int restarts_ = 0;                     // number of the next restart marker, 0 to 7
  const std::uint8_t* limit_ = nullptr;  // an MCU that begins before it has all its data in the buffer
};

}  // namespace vantorium::image::jpeg
