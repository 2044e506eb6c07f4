#pragma once

#include "image/jpeg/Color.h"
#include "image/jpeg/RowWalk.h"

#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// The parts of the header that decoding a usual file needs.
struct UsualFile {
  ChromaLayout chroma;
  MCUGrid grid;
  std::vector<Component> components;
};

/// Copies them from a header that jpeg_read_header has read. Returns nothing if the colors or the quantization tables
/// are not those of a usual file.
[[nodiscard]] std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header);

}  // namespace vantorium::image::jpeg
