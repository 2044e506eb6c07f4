#pragma once

#include "image/jpeg/Coefficients.h"
#include "image/jpeg/HuffmanTables.h"
#include "image/jpeg/ScanHeaders.h"
#include "image/jpeg/SegmentReader.h"

#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// Reads a progressive scan of a band of AC coefficients, one row of blocks at a time (ITU-T T.81, G.1.2.2 and
/// G.1.2.3). Reading a row fails if the data are unusual.
class ACBand {
 public:
  ACBand(SegmentReader& reader, const ScanHeader& header, ValueTable table);

  /// Reads a row of the band's first scan, which has the high bits of its coefficients.
  [[nodiscard]] bool ReadFirst(const Coefficients::Row& row, std::size_t blocks);
  /// Reads a row of a refining scan, which has the next lower bit of each.
  [[nodiscard]] bool Refine(const Coefficients::Row& row, std::size_t blocks);
  /// Returns whether the scan ends after the rows read.
  [[nodiscard]] bool EndsScan() { return reader_.EndsScan(window_); }

 private:
  [[nodiscard]] bool BeginBlock(BitWindow& window);
  [[nodiscard]] bool ReadNew(BitWindow& shared, unsigned k, std::uint64_t& notZero, std::int16_t* values);
  [[nodiscard]] bool RefineBlock(BitWindow& shared, std::uint64_t& notZero, std::int16_t* values);

  SegmentReader& reader_;
  ValueTable table_;
  unsigned first_;
  unsigned last_;
  int unit_;                  // the weight of the lowest bit in the scan
  std::uint64_t band_;        // a bit for each coefficient
  unsigned endedBlocks_ = 0;  // how many of the next blocks have no new coefficients
  BitWindow window_;
};

}  // namespace vantorium::image::jpeg
