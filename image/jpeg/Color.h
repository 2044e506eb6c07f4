#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// The size of the chroma components compared to luminance.
enum class Chroma { None, Full, HalfWidth, HalfBoth };

/// The columns or the rows of the chroma components. Pixel `i` gets its smooth chroma from two samples, which are the
/// same one at the edges, and everywhere if chroma is not of half the size.
struct ChromaAxis {
  bool half;
  std::size_t last;  ///< the last sample

  /// The sample in which the pixel lies.
  [[nodiscard]] std::size_t Own(std::size_t i) const { return half ? i / 2 : i; }
  /// The neighbor of that sample which is nearer to the pixel.
  [[nodiscard]] std::size_t Beside(std::size_t i) const {
    if (!half) return i;
    return i % 2 != 0 ? std::min(i / 2 + 1, last) : std::max<std::size_t>(i / 2, 1) - 1;
  }
};

struct ChromaLayout {
  Chroma size;
  ChromaAxis columns;
  ChromaAxis rows;
};

/// The samples of a chroma component in the two rows from which a row of pixels gets its smooth chroma.
struct ChromaRows {
  const std::uint8_t* own;
  const std::uint8_t* beside;
};

/// The samples of one row of pixels. 8 bytes beyond the end of each row must be readable.
struct SampleRows {
  const std::uint8_t* luminance;
  ChromaRows blue;
  ChromaRows red;
  ChromaAxis columns;
};

/// Writes the pixels of the columns from `begin` up to but excluding `end` into the row `bgr`, 3 bytes each. Smooths
/// chroma and converts colors exactly as libjpeg-turbo does.
void WritePixels(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end, std::uint8_t* bgr);

}  // namespace vantorium::image::jpeg
