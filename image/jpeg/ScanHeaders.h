#pragma once

#include "image/jpeg/HuffmanSlots.h"
#include "image/jpeg/ScanData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// The header of a scan of a progressive picture (ITU-T T.81, B.2.3 and G.1.1).
struct ScanHeader {
  struct Part {
    std::size_t component;
    unsigned dcTable;
    unsigned acTable;
  };
  std::vector<Part> parts;
  unsigned first;  ///< the first and the last coefficient in zigzag order
  unsigned last;
  unsigned knownFrom;  ///< the lowest bit in the scan before (Ah); 0 in the first scan of these coefficients
  unsigned lowest;     ///< the lowest bit in this scan (Al)

  [[nodiscard]] bool Refines() const { return knownFrom != 0; }
};

/// Reads the headers of the scans of a progressive picture with the Huffman tables between them, and checks that each
/// scan continues where the earlier ones ended.
class ScanHeaders {
 public:
  /// Takes over what jpeg_read_header has read, up to the header of the first scan.
  explicit ScanHeaders(const jpeg_decompress_struct& header);

  /// The last header read. Empty if it was unusual.
  [[nodiscard]] const std::optional<ScanHeader>& Scan() const { return scan_; }
  [[nodiscard]] const HuffmanSlots& Tables() const { return tables_; }
  /// Reads from `marker`, which ended a scan and of which `data` hold what follows, up to the next scan or the end
  /// marker. Scan is empty then. Returns false if anything else is found.
  [[nodiscard]] bool ReadNext(int marker, ScanData& data);
  /// Returns whether the scans had every bit of every coefficient.
  [[nodiscard]] bool AreComplete() const;

 private:
  static constexpr int kUnknown = -1;
  using MissingBits = std::array<int, 64>;  // of each coefficient, or kUnknown

  [[nodiscard]] bool TakeScan(const std::vector<std::uint8_t>& segment);
  [[nodiscard]] bool Accept(ScanHeader scan);
  [[nodiscard]] bool Continues(const ScanHeader& scan, const MissingBits& missing) const;

  HuffmanSlots tables_;
  std::vector<int> identifiers_;
  std::vector<MissingBits> missing_;
  std::optional<ScanHeader> scan_;
  int scans_ = 0;
};

}  // namespace vantorium::image::jpeg
