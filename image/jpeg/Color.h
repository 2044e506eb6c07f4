#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// How much coarser chroma is than luminance.
enum class Chroma { None, Full, HalfWidth, HalfBoth };

/// Of chroma of half the size, the sample that lies beside the one of pixel `x` on the side of that pixel. `last` is
/// the last sample.
constexpr std::size_t Beside(std::size_t x, std::size_t last) {
  const std::size_t own = x / 2;
  if (x % 2 != 0) return std::min(own + 1, last);
  return own == 0 ? 0 : own - 1;
}

/// The rows of one chroma component that a row of pixels lies in, and beside; twice the same one unless for HalfBoth.
struct ChromaRows {
  const std::uint8_t* own;
  const std::uint8_t* beside;
};

/// The samples that one row of pixels is made of. 8 more bytes may be read behind those of each row.
struct SampleRows {
  const std::uint8_t* luminance;
  ChromaRows blue;
  ChromaRows red;
  std::size_t lastChroma;  ///< the last column of chroma
};

/// Writes the pixels of the columns `begin` to before `end` to their places in the row `bgr`, with smooth chroma, as
/// the library does.
void WritePixels(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end, std::uint8_t* bgr);

}  // namespace vantorium::image::jpeg
