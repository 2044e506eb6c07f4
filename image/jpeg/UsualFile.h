#pragma once

#include "image/jpeg/Color.h"
#include "image/jpeg/ScanWalk.h"

#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// The parts of the header that decoding a usual file needs.
struct UsualFile {
  Chroma chroma;
  ChromaAxis chromaColumns;
  ChromaAxis chromaRows;
  MCUGrid grid;
  unsigned restartInterval;
  std::vector<ScanComponent> components;
};

/// Copies them from a header that jpeg_read_header has read. Returns nothing if the file is not a usual one or its
/// tables are missing or invalid.
[[nodiscard]] std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header);

}  // namespace vantorium::image::jpeg
