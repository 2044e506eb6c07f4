#pragma once

#include "image/WantedPixels.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>

#include <jpeglib.h>
#include <sys/types.h>

namespace vantorium::image::jpeg {

/// Decodes the wanted pixels of JPEG files of the usual kind, much faster than the library and with the same outcome to
/// the last bit: one sequential scan of Huffman codes, 8 bits a sample, grey or YCbCr with chroma of full size, half
/// the width, or half the width and height. Blocks without a wanted pixel are only passed over, and of the others only
/// the wanted rows are transformed.
///
/// It knows files that are as nearly all are, and gives up on the first byte that is not. The library then decides
/// what the file is worth.
class SequentialDecoder {
 public:
  /// Whether it is the faster one on this processor. In plain C++ it is not: the library has vectors for most.
#ifdef __x86_64__
  static constexpr bool kIsFaster = true;
#else
  static constexpr bool kIsFaster = false;
#endif

  /// For the file whose header, up to the data of its first scan, the library has read. The data begin at `place`. Null
  /// when the file is of another kind.
  [[nodiscard]] static std::unique_ptr<SequentialDecoder> For(const jpeg_decompress_struct& header, int descriptor,
                                                              off_t place, const WantedPixels& wanted);
  ~SequentialDecoder();
  SequentialDecoder(const SequentialDecoder&) = delete;
  SequentialDecoder& operator=(const SequentialDecoder&) = delete;

  /// Writes the wanted pixels of a wanted row, counted from the top and below those read before, to their places in
  /// `bgr`. False, for good, on a surprise. A file whose bottom row was read is whole.
  [[nodiscard]] bool ReadRow(std::size_t row, std::uint8_t* bgr);

 private:
  class State;
  explicit SequentialDecoder(std::unique_ptr<State> state);

  std::unique_ptr<State> state_;
};

}  // namespace vantorium::image::jpeg
