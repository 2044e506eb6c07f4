#include "image/jpeg/HuffmanSlots.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kLargestDCSymbol = 15;

}  // namespace

HuffmanSlots::HuffmanSlots(const jpeg_decompress_struct& header) {
  for (std::size_t i = 0; i < NUM_HUFF_TBLS; ++i) {
    if (header.dc_huff_tbl_ptrs[i] != nullptr) tables_[0][i] = *header.dc_huff_tbl_ptrs[i];
    if (header.ac_huff_tbl_ptrs[i] != nullptr) tables_[1][i] = *header.ac_huff_tbl_ptrs[i];
  }
}

// For each table: its kind and number, how many codes have each length from 1 to 16, and the symbols.
bool HuffmanSlots::Take(const std::vector<std::uint8_t>& segment) {
  constexpr std::ptrdiff_t kBeforeSymbols = 17;
  for (auto at = segment.begin(); at != segment.end();) {
    if (segment.end() - at < kBeforeSymbols) return false;
    const unsigned kind = *at / 16U;
    const unsigned number = *at % 16U;
    const int count = std::accumulate(at + 1, at + kBeforeSymbols, 0);
    if (kind > 1 || number >= NUM_HUFF_TBLS || count > 256 || segment.end() - at < kBeforeSymbols + count) return false;
    JHUFF_TBL table = {};
    std::copy(at + 1, at + kBeforeSymbols, std::begin(table.bits) + 1);
    std::copy_n(at + kBeforeSymbols, count, std::begin(table.huffval));
    tables_[kind][number] = table;
    at += kBeforeSymbols + count;
  }
  return true;
}

std::optional<HuffmanCode> HuffmanSlots::CodeAt(std::size_t kind, unsigned number) const {
  HuffmanCode code;
  if (number >= NUM_HUFF_TBLS || !tables_[kind][number] || !code.Set(*tables_[kind][number])) return {};
  return code;
}

std::optional<HuffmanCode> HuffmanSlots::DC(unsigned number) const {
  auto code = CodeAt(0, number);
  if (code && code->HasSymbolsAbove(kLargestDCSymbol)) return {};
  return code;
}

}  // namespace vantorium::image::jpeg
