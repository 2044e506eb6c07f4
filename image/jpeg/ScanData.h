#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <sys/types.h>

namespace vantorium::image::jpeg {

/// The entropy-coded data of a scan, piece by piece as they are needed, without the zeros that are stuffed behind each
/// byte FF. They come in segments that end at a marker.
class ScanData {
 public:
  /// So many zeros stand behind the end of a segment, and a piece that does not end one is made longer while no fewer
  /// bytes are left of it. More than one group of blocks can take.
  static constexpr std::ptrdiff_t kRoom = 4096;

  /// The data begin at `place` of the file `descriptor`, which must stay open.
  ScanData(int descriptor, off_t place);

  [[nodiscard]] const std::uint8_t* Begin() const { return data_.data(); }
  /// The end of what is known of the segment.
  [[nodiscard]] const std::uint8_t* End() const { return data_.data() + size_; }
  /// Whether that is the end of the segment.
  [[nodiscard]] bool IsWhole() const { return whole_; }
  /// The second byte of the marker behind a whole segment; 0 where the file ended or could not be read.
  [[nodiscard]] std::uint8_t Marker() const { return marker_; }

  /// Gives up the data before `unread` and makes more of them known. Where `unread` stands from now on.
  const std::uint8_t* More(const std::uint8_t* unread);
  /// Begins the segment behind the marker.
  void BeginNextSegment();

 private:
  [[nodiscard]] bool ReadFile();
  [[nodiscard]] int NextFileByte();
  void TakeMarkerOrByte();
  void TakePiece();
  void Fill();

  int descriptor_;
  off_t place_;
  std::vector<std::uint8_t> file_;  // as the file has them
  std::size_t taken_ = 0;
  std::size_t read_ = 0;
  std::vector<std::uint8_t> data_;
  std::size_t size_ = 0;
  bool whole_ = false;
  std::uint8_t marker_ = 0;
};

}  // namespace vantorium::image::jpeg
