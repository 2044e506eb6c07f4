#pragma once

#include "image/jpeg/HuffmanTables.h"
#include "image/jpeg/RowWalk.h"
#include "image/jpeg/SegmentReader.h"
#include "image/jpeg/UsualFile.h"

#include <cstddef>
#include <cstdio>
#include <memory>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// The Huffman codes of DC and AC coefficients.
struct CodeTables {
  ValueTable dc;
  ValueTable ac;
  SkipTable acSkip;
};

/// What decoding a component from one sequential scan needs.
struct SequentialComponent : Component {
  std::shared_ptr<const CodeTables> codes;  ///< shared by components that use the same tables of the file
  unsigned prediction = 0;                  ///< of the DC coefficient; wraps
};

/// Decodes the only scan of a picture. Skips the blocks without wanted samples.
class SequentialScan : public RowWalk {
 public:
  /// Returns null if the file has several scans or a Huffman table is missing or unusual. `reader` is at the data of
  /// the scan.
  [[nodiscard]] static std::unique_ptr<SequentialScan> For(const jpeg_decompress_struct& header, UsualFile file,
                                                           SegmentReader reader);
  SequentialScan(SegmentReader reader, MCUGrid grid, std::vector<SequentialComponent> components);

  [[nodiscard]] bool PassRow(std::size_t row) override;
  [[nodiscard]] const Plane& PlaneOf(std::size_t component) const override { return components_[component].plane; }

 private:
  struct Lane;

  [[nodiscard]] std::vector<Lane> LanesOf(std::size_t row);
  [[nodiscard]] bool PassMCU(BitWindow& window, const std::vector<Lane>& lanes, std::size_t mcu);

  SegmentReader reader_;
  MCUGrid grid_;
  std::vector<SequentialComponent> components_;
  BitWindow window_;
};

}  // namespace vantorium::image::jpeg
