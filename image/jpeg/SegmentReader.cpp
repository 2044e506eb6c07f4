#include "image/jpeg/SegmentReader.h"

#include "image/jpeg/Markers.h"

#include <utility>

namespace vantorium::image::jpeg {

SegmentReader::SegmentReader(ScanData data, unsigned restartInterval)
    : data_(std::move(data)), restartInterval_(restartInterval) {}

// The limit is the first byte of the segment, so the first MCU leads to Extend.
BitWindow SegmentReader::BeginScan() {
  data_.BeginSegment();
  limit_ = data_.Begin();
  untilRestart_ = restartInterval_;
  restarts_ = 0;
  return BitWindow(data_.Begin());
}

bool SegmentReader::Extend(BitWindow& window) {
  if (!data_.IsWhole()) window.MoveTo(data_.More(window.Next()));
  limit_ = data_.End() - (data_.IsWhole() ? 0 : ScanData::kRoom);
  return HoldsAllOf(window);
}

bool SegmentReader::EndsScan(BitWindow window) {
  if (!data_.IsWhole() && !Extend(window)) return false;
  const std::ptrdiff_t bits = window.BitsBefore(data_.End());
  return data_.IsWhole() && bits >= 0 && bits < 8;
}

bool SegmentReader::PassRestart(BitWindow& window) {
  if (!EndsScan(window) || Marker() != kFirstRestart + restarts_) return false;
  data_.BeginSegment();
  limit_ = data_.Begin();
  untilRestart_ = restartInterval_ - 1;
  restarts_ = (restarts_ + 1) % 8;
  window = BitWindow(data_.Begin());
  return true;
}

}  // namespace vantorium::image::jpeg
