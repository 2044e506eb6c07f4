#include "image/jpeg/HuffmanTables.h"

#include <algorithm>

namespace vantorium::image::jpeg {
namespace {

constexpr unsigned kSixteenZeros = 0xF0;

// A symbol without value bits ends the block unless it means sixteen zeros.
bool EndsBlock(unsigned symbol) {
  return symbol % 16 == 0 && symbol != kSixteenZeros;
}

unsigned MoveOf(unsigned symbol) {
  return EndsBlock(symbol) ? kEndOfBlock : symbol / 16 + 1;
}

// A value whose first bit is 0 is negative.
int ValueOf(unsigned bits, unsigned size) {
  const unsigned first = size == 0 ? 0 : 1U << (size - 1);
  return static_cast<int>(bits) - (bits < first ? static_cast<int>(2 * first - 1) : 0);
}

}  // namespace

bool HuffmanCode::Set(const JHUFF_TBL& table) {
  unsigned code = 0;
  count_ = 0;
  for (unsigned length = 1; length <= 16; ++length) {
    code *= 2;
    shift_[length] = count_ - code;
    code += table.bits[length];
    count_ += table.bits[length];
    // The code of all ones is reserved.
    if (table.bits[length] > 0 && code >= 1U << length) return false;
    limit_[length] = code << (16 - length);
  }
  if (count_ > symbols_.size()) return false;
  std::copy_n(table.huffval, count_, symbols_.begin());
  return true;
}

bool HuffmanCode::HasSymbolsAbove(unsigned symbol) const {
  return std::any_of(symbols_.begin(), symbols_.begin() + count_, [symbol](unsigned each) { return each > symbol; });
}

bool HuffmanCode::HasValuesAbove(unsigned bits) const {
  return std::any_of(symbols_.begin(), symbols_.begin() + count_, [bits](unsigned each) { return each % 16 > bits; });
}

bool HuffmanCode::EndsBlocks() const {
  return std::any_of(symbols_.begin(), symbols_.begin() + count_,
                     [](unsigned each) { return each != 0 && EndsBlock(each); });
}

HuffmanCode::Code HuffmanCode::Find(std::uint64_t bits) const {
  const auto top = static_cast<std::uint32_t>(bits >> 48);
  for (unsigned length = 1; length <= 16; ++length) {
    if (top < limit_[length]) return {length, symbols_[((top >> (16 - length)) + shift_[length]) & 0xFF]};
  }
  return {0, 0};
}

Symbol HuffmanCode::Read(std::uint64_t bits) const {
  const Code code = Find(bits);
  if (code.length == 0) return {0, kBadCode, 0};
  const bool endsBlock = EndsBlock(code.symbol);
  const unsigned size = endsBlock ? code.symbol / 16 : code.symbol % 16;
  const auto valueBits = static_cast<unsigned>(bits << code.length >> 32 >> (32 - size));
  const int value = endsBlock ? static_cast<int>((1U << size) - 1 + valueBits) : ValueOf(valueBits, size);
  return {code.length + size, MoveOf(code.symbol), value};
}

ValueTable::ValueTable(const HuffmanCode& code) : code_(code), entries_(std::size_t{1} << kIndexBits) {
  for (std::size_t index = 0; index < entries_.size(); ++index) {
    const std::uint32_t entry = EntryOf(std::uint64_t{index} << (64 - kIndexBits));
    const unsigned length = SymbolOf(entry).length;
    if (length != 0 && length <= kIndexBits) entries_[index] = entry;
  }
}

std::uint32_t ValueTable::EntryOf(std::uint64_t bits) const {
  const Symbol symbol = code_.Read(bits);
  return static_cast<std::uint32_t>(symbol.value) << 16 | symbol.move << 8 | symbol.length;
}

SkipTable::SkipTable(const HuffmanCode& code) : code_(code), entries_(std::size_t{1} << kIndexBits) {
  for (std::size_t index = 0; index < entries_.size(); ++index) entries_[index] = EntryOf(static_cast<unsigned>(index));
}

// The value bits of the last symbol may lie beyond the index: only their number matters.
std::uint16_t SkipTable::EntryOf(unsigned index) const {
  const std::uint64_t bits = std::uint64_t{index} << (64 - kIndexBits);
  unsigned length = 0;
  unsigned move = 0;
  while (length < kIndexBits && move < kLastPlace) {
    const HuffmanCode::Code code = code_.Find(bits << length);
    if (code.length == 0 || length + code.length > kIndexBits) break;
    length += code.length + code.symbol % 16;
    move += MoveOf(code.symbol);
  }
  return static_cast<std::uint16_t>(move << 8 | length);
}

unsigned SkipTable::PassSingly(std::uint64_t bits) const {
  const HuffmanCode::Code code = code_.Find(bits);
  return code.length == 0 ? kBadCode << 8 : MoveOf(code.symbol) << 8 | (code.length + code.symbol % 16);
}

}  // namespace vantorium::image::jpeg
