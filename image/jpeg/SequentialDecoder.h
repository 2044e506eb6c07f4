#pragma once

#include "image/WantedPixels.h"
#include "image/jpeg/UsualFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <vector>

#include <jpeglib.h>
#include <sys/types.h>

namespace vantorium::image::jpeg {

/// Decodes the wanted pixels of usual JPEG files, much faster than libjpeg-turbo and to the same bytes. A usual file
/// has one sequential Huffman-coded scan, 8 bits per sample, and gray or YCbCr colors with chroma of full size, half
/// the width, or half the width and height. Blocks without wanted pixels are skipped; in the others only the wanted
/// rows are transformed.
///
/// It gives up on the first unusual byte, without deciding whether the file is damaged: libjpeg-turbo must decode such
/// a file.
class SequentialDecoder {
 public:
  /// Whether it is faster than libjpeg-turbo on this processor. Without vector instructions it is not.
#ifdef __x86_64__
  static constexpr bool kIsFaster = true;
#else
  static constexpr bool kIsFaster = false;
#endif

  /// Returns a decoder for the file `descriptor`, which must stay open, or null if the file is not a usual one.
  /// `header` was read by jpeg_read_header; the data of the first scan begin at offset `place`.
  [[nodiscard]] static std::unique_ptr<SequentialDecoder> For(const jpeg_decompress_struct& header, int descriptor,
                                                              off_t place, const WantedPixels& wanted);
  /// The planes of `file` must know the wanted samples.
  SequentialDecoder(UsualFile file, ScanData data, const WantedPixels& wanted);

  /// Writes the wanted pixels of a wanted row to their places in `bgr`. Rows are counted from the top and must be read
  /// in this order. Returns false if it gives up; all later calls then fail, too. Once the bottom row was read, the
  /// whole file is known to be undamaged.
  [[nodiscard]] bool ReadRow(std::size_t row, std::uint8_t* bgr);

 private:
  struct Span {
    std::size_t begin;
    std::size_t end;
  };

  [[nodiscard]] static std::vector<Span> SpansOf(const std::vector<std::uint8_t>& marks);
  [[nodiscard]] bool PassTo(std::size_t row);
  [[nodiscard]] ChromaRows ChromaRowsOf(std::size_t component, std::size_t row) const;

  Chroma chroma_;
  ChromaAxis chromaColumns_;
  ChromaAxis chromaRows_;
  std::vector<std::uint8_t> wanted_;
  std::vector<Span> spans_;  // of wanted columns
  ScanWalk walk_;
};

}  // namespace vantorium::image::jpeg
