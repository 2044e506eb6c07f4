#pragma once

#include "image/jpeg/Coefficients.h"
#include "image/jpeg/ScanHeaders.h"
#include "image/jpeg/SegmentReader.h"

#include <stop_token>
#include <vector>

namespace vantorium::image::jpeg {

/// A progressive picture while its scans are read.
struct ProgressivePicture {
  MCUGrid grid;
  std::vector<Component> components;
  std::vector<Coefficients> coefficients;
};

/// Reads the scan that `headers` has reached into the coefficients of `picture` (ITU-T T.81, G.1.2). Returns false if
/// the scan is unusual or a stop is requested.
[[nodiscard]] bool ReadScan(SegmentReader& reader, const ScanHeaders& headers, ProgressivePicture& picture,
                            const std::stop_token& stop);

}  // namespace vantorium::image::jpeg
