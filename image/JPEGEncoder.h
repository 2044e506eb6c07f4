#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace vantorium::image {

/// Encodes one picture row by row, from the top down, into memory: baseline, YCbCr with chroma halved in both
/// directions, default Huffman tables, the accurate integer DCT. Any call may throw RuntimeFailure JPEGLibrary with
/// "Failed to save to JPG " and libjpeg-turbo's message, for example for a side of 0 or above 65500.
class JPEGEncoder {
 public:
  /// `quality` is on the scale of the Independent JPEG Group, 1 to 100.
  JPEGEncoder(std::int32_t width, std::int32_t height, std::int32_t quality);
  ~JPEGEncoder();
  JPEGEncoder(const JPEGEncoder&) = delete;
  JPEGEncoder& operator=(const JPEGEncoder&) = delete;

  /// Encodes the next row, 3 bytes per pixel: blue, green, red.
  void WriteRow(const std::uint8_t* bgr);
  /// Returns the bytes of the file. Call once, after all rows are written.
  [[nodiscard]] std::string Finish();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace vantorium::image
