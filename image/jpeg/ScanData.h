#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <sys/types.h>

namespace vantorium::image::jpeg {

/// Reads the entropy-coded data of scans from a file, a piece at a time, and removes the zero stuffed after each byte
/// FF. A marker ends a segment; restart markers separate the segments of a scan.
class ScanData {
 public:
  /// More bytes than an MCU can consume. As many zeros follow the end of a segment, so an MCU that begins within the
  /// segment never reads beyond the buffer. Ask for more data before fewer than these are left of an unfinished one.
  static constexpr std::ptrdiff_t kRoom = 4096;

  /// The data begin at offset `place` of the file `descriptor`, which must stay open. Call BeginSegment first.
  ScanData(int descriptor, off_t place);

  [[nodiscard]] const std::uint8_t* Begin() const { return data_.data(); }
  /// The end of what was read of the segment.
  [[nodiscard]] const std::uint8_t* End() const { return data_.data() + size_; }
  /// Whether the segment was read to its end.
  [[nodiscard]] bool IsWhole() const { return whole_; }
  /// The second byte of the marker that ends a whole segment; 0 if the file ended or could not be read.
  [[nodiscard]] std::uint8_t Marker() const { return marker_; }

  /// Discards the data before `unread` and reads more. Returns the new address of what `unread` pointed to.
  const std::uint8_t* More(const std::uint8_t* unread);
  /// Reads the beginning of the next segment.
  void BeginSegment();
  /// Takes the next byte after the marker that ended a segment; -1 at the end of the file.
  [[nodiscard]] int NextByte();

 private:
  [[nodiscard]] bool ReadFile();
  void TakeMarkerOrByte();
  void TakePiece();
  void Fill();

  int descriptor_;
  off_t place_;
  std::vector<std::uint8_t> file_;  // bytes as in the file
  std::size_t taken_ = 0;
  std::size_t read_ = 0;
  std::vector<std::uint8_t> data_;
  std::size_t size_ = 0;
  bool whole_ = false;
  std::uint8_t marker_ = 0;
};

}  // namespace vantorium::image::jpeg
