#pragma once

#include "image/WantedPixels.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>

namespace vantorium {

/// Decodes one JPEG file row by row, from the top of the picture down. The order of calls is Open, Start, then ReadRow
/// and SkipRows until all rows are through, then Finish. Any call may answer false; the file is then given up.
///
/// Grey, YCbCr, RGB, CMYK and YCCK pictures of 8 bits a sample come out as blue, green, red. Decoding is the library's
/// default: the accurate integer transform and smooth chroma. Orientation tags and colour profiles are not looked at.
class JPEGDecoder {
 public:
  JPEGDecoder();
  ~JPEGDecoder();
  JPEGDecoder(const JPEGDecoder&) = delete;
  JPEGDecoder& operator=(const JPEGDecoder&) = delete;

  /// A stop ends the calls that follow, Start in the middle of a file too, as if the file were damaged.
  void StopWith(const std::stop_token& stop);
  /// Opens the file and reads its header. False for whatever is no JPEG file.
  [[nodiscard]] bool Open(const std::filesystem::path& path);
  /// The picture's size in pixels; known once Open succeeded.
  [[nodiscard]] std::int32_t width() const;
  [[nodiscard]] std::int32_t height() const;
  /// Whether a file of this size can hold as many pixels as its header claims. The others are refused by Start, which
  /// would otherwise take memory and time for pictures that are not there.
  [[nodiscard]] bool IsPlausible() const;
  /// Bytes of coefficients that Start will hold: those of the whole picture when it came in several scans, else none.
  [[nodiscard]] std::uint64_t HeldBytes() const;

  /// Between Open and Start: the picture shall come out with both sides divided by 1, 2, 4 or 8, rounded up, which
  /// takes much less time. SkipRows is not for such a picture.
  void ReduceBy(int divisor);
  /// The size of what comes out, in pixels.
  [[nodiscard]] std::int32_t OutputWidth() const;
  [[nodiscard]] std::int32_t OutputHeight() const;

  /// Between Open and Start: no more than these pixels are looked at, so the others may come out as anything, and only
  /// wanted rows are read. Files of the usual kind are then decoded without the library, as long as nothing is wrong
  /// with them. Not for a reduced picture.
  void Want(WantedPixels wanted);

  [[nodiscard]] bool Start();
  /// Writes the next row, 3 bytes a pixel, to `bgr`. False as soon as the data turn out to be damaged or to end early.
  [[nodiscard]] bool ReadRow(std::uint8_t* bgr);
  /// Leaves out the next `count` rows. The rows behind them come out as if these had been read. Damage in the rows
  /// that end the picture may go unnoticed when they are skipped.
  [[nodiscard]] bool SkipRows(std::int32_t count);
  /// Reads to the end mark. False when the data were damaged anywhere or rows are left.
  [[nodiscard]] bool Finish();

 private:
  struct State;
  [[nodiscard]] bool StartLibrary();
  [[nodiscard]] bool TurnToLibrary();

  std::unique_ptr<State> state_;
  std::stop_token stop_;
  int divisor_ = 1;
};

}  // namespace vantorium
