#pragma once

#include "image/jpeg/ProgressiveScan.h"
#include "image/jpeg/RowWalk.h"
#include "image/jpeg/ScanHeaders.h"
#include "image/jpeg/SegmentReader.h"
#include "image/jpeg/UsualFile.h"

#include <cstddef>
#include <cstdio>
#include <stop_token>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// Decodes a progressive picture. All scans are read before the first row; a stop request then makes it fail.
class ProgressiveWalk : public RowWalk {
 public:
  /// `reader` is at the data of the first scan.
  ProgressiveWalk(const jpeg_decompress_struct& header, UsualFile file, SegmentReader reader, std::stop_token stop);

  [[nodiscard]] bool PassRow(std::size_t row) override;
  [[nodiscard]] const Plane& PlaneOf(std::size_t component) const override {
    return picture_.components[component].plane;
  }

 private:
  [[nodiscard]] bool ReadScans();
  [[nodiscard]] bool PassBlocks(std::size_t number, std::size_t blockRow);

  SegmentReader reader_;
  ScanHeaders headers_;
  ProgressivePicture picture_;
  std::stop_token stop_;
};

}  // namespace vantorium::image::jpeg
