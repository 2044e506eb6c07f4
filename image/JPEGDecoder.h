#pragma once

#include "image/WantedPixels.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stop_token>

namespace vantorium::image {

/// Decodes one JPEG file row by row, from the top of the picture down. Call Open, Start, then ReadRow and SkipRows
/// until all rows are consumed, then Finish. Once a call returns false the file cannot be decoded.
///
/// Gray, YCbCr, RGB, CMYK and YCCK pictures with 8 bits per sample are output as blue, green, red. Decoding uses
/// libjpeg-turbo's defaults: the accurate integer DCT and smooth chroma upsampling. Orientation tags and color profiles
/// are ignored.
class JPEGDecoder {
 public:
  JPEGDecoder();
  ~JPEGDecoder();
  JPEGDecoder(const JPEGDecoder&) = delete;
  JPEGDecoder& operator=(const JPEGDecoder&) = delete;

  /// A stop request makes later calls fail as if the file were damaged, and interrupts Start. Takes effect with the
  /// next Open.
  void StopWith(const std::stop_token& stop);
  /// Opens the file and reads its header. Returns false if `path` is not a readable JPEG file.
  [[nodiscard]] bool Open(const std::filesystem::path& path);
  /// The picture's size in pixels. Valid after Open has succeeded.
  [[nodiscard]] std::int32_t width() const;
  [[nodiscard]] std::int32_t height() const;
  /// Returns whether a file of this size can hold as many pixels as its header claims. If not, Start refuses the file,
  /// since it would spend memory and time on a picture that does not exist.
  [[nodiscard]] bool IsPlausible() const;
  /// Returns the bytes of coefficients that Start will hold: those of the whole picture if it has several scans,
  /// otherwise 0.
  [[nodiscard]] std::uint64_t HeldBytes() const;

  /// Scales the output down: both sides are divided by 1, 2, 4 or 8 and rounded up, which is much faster. Call between
  /// Open and Start. SkipRows does not support it.
  void ReduceBy(int divisor);
  /// The size of the output in pixels.
  [[nodiscard]] std::int32_t OutputWidth() const;
  [[nodiscard]] std::int32_t OutputHeight() const;

  /// Promises to use these pixels only: ReadRow may then write anything to the others, and the caller must skip all
  /// other rows. This makes decoding of usual files much faster (jpeg/WantedDecoder.h). Call between Open and
  /// Start. ReduceBy does not support it.
  void Want(WantedPixels wanted);

  [[nodiscard]] bool Start();
  /// Writes the next row, 3 bytes per pixel, to `bgr`. Returns false once the data prove damaged or truncated.
  [[nodiscard]] bool ReadRow(std::uint8_t* bgr);
  /// Skips the next `count` rows. The rows after them are the same as if these had been read. Damage in the last rows
  /// of the picture may go unnoticed if they are skipped.
  [[nodiscard]] bool SkipRows(std::int32_t count);
  /// Reads to the end marker, or to the end of the file if nothing but the marker is missing. Returns false if the data
  /// were damaged anywhere or rows remain.
  [[nodiscard]] bool Finish();

 private:
  struct State;
  [[nodiscard]] bool StartLibrary();
  [[nodiscard]] bool TurnToLibrary();

  std::unique_ptr<State> state_;
  std::stop_token stop_;
  int divisor_ = 1;
};

}  // namespace vantorium::image
