#pragma once

#include "image/jpeg/HuffmanTables.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

/// The Huffman tables that a file has defined so far, by their kind and number.
class HuffmanSlots {
 public:
  /// Copies those that jpeg_read_header has read.
  explicit HuffmanSlots(const jpeg_decompress_struct& header);

  /// Replaces the tables of a segment DHT (ITU-T T.81, B.2.4.2). Returns false if it is malformed.
  [[nodiscard]] bool Take(const std::vector<std::uint8_t>& segment);

  /// Return the code of a table, or nothing if it is missing or invalid.
  [[nodiscard]] std::optional<HuffmanCode> DC(unsigned number) const;
  [[nodiscard]] std::optional<HuffmanCode> AC(unsigned number) const { return CodeAt(1, number); }

 private:
  [[nodiscard]] std::optional<HuffmanCode> CodeAt(std::size_t kind, unsigned number) const;

  std::array<std::array<std::optional<JHUFF_TBL>, NUM_HUFF_TBLS>, 2> tables_;
};

}  // namespace vantorium::image::jpeg
