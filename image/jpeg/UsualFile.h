#pragma once

#include "image/jpeg/Color.h"
#include "image/jpeg/ScanWalk.h"

#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// What the header of a file of the usual kind says.
struct UsualFile {
  Chroma chroma;
  GroupGrid grid;
  std::size_t lastChromaColumn;
  std::size_t lastChromaRow;
  unsigned restartInterval;
  std::vector<ScanComponent> components;
};

/// Takes over what the library read of a header, up to the data of the first scan. Nothing when the file is of another
/// kind, or its tables are none.
[[nodiscard]] std::optional<UsualFile> TakeOver(const jpeg_decompress_struct& header);

}  // namespace vantorium::image::jpeg
