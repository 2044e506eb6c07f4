#pragma once

#include "image/WantedPixels.h"
#include "image/jpeg/Color.h"
#include "image/jpeg/RowWalk.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <stop_token>
#include <vector>

#include <jpeglib.h>
#include <sys/types.h>

namespace vantorium::image::jpeg {

/// Decodes the wanted pixels of usual JPEG files, much faster than libjpeg-turbo and to the same bytes. A usual file is
/// Huffman-coded, in one sequential scan or progressive, and has 8 bits per sample and gray or YCbCr colors with chroma
/// of full size, half the width, or half the width and height. Blocks without wanted pixels are not decoded farther
/// than it takes to find the others; of those only the wanted rows are transformed.
///
/// It gives up on the first unusual byte, without deciding whether the file is damaged: libjpeg-turbo must decode such
/// a file.
class WantedDecoder {
 public:
  /// Whether it is faster than libjpeg-turbo on this processor. Without vectors it is not.
  static const bool kIsFaster;

  /// Returns a decoder for the file `descriptor`, which must stay open, or null if the file is not a usual one.
  /// `header` was read by jpeg_read_header; the data of the first scan begin at offset `place`.
  [[nodiscard]] static std::unique_ptr<WantedDecoder> For(const jpeg_decompress_struct& header, int descriptor,
                                                          off_t place, const WantedPixels& wanted,
                                                          const std::stop_token& stop);
  /// `walk` decodes the wanted samples.
  WantedDecoder(const ChromaLayout& chroma, std::unique_ptr<RowWalk> walk, const WantedPixels& wanted);

  /// Writes the wanted pixels of a wanted row to their places in `bgr`. Rows are counted from the top and must be read
  /// in this order. Returns false if it gives up, or if a stop is requested while it reads several scans; all later
  /// calls then fail, too. Once the bottom row was read, the whole file is known to be undamaged.
  [[nodiscard]] bool ReadRow(std::size_t row, std::uint8_t* bgr);

 private:
  struct Span {
    std::size_t begin;
    std::size_t end;
  };

  [[nodiscard]] static std::vector<Span> SpansOf(const std::vector<std::uint8_t>& marks);
  [[nodiscard]] bool PassTo(std::size_t row);
  [[nodiscard]] ChromaRows ChromaRowsOf(std::size_t component, std::size_t row) const;

  ChromaLayout chroma_;
  std::vector<std::uint8_t> wanted_;
  std::vector<Span> spans_;  // of wanted columns
  std::unique_ptr<RowWalk> walk_;
  std::size_t rowsPassed_ = 0;
};

}  // namespace vantorium::image::jpeg
