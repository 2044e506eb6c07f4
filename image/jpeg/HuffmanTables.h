#pragma once

#include "image/jpeg/Bits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

// Within a block, `k` is the index of the last coefficient read, in zigzag order: 0 is the DC coefficient, 63 the last.
// Each symbol advances it. The end of a block advances it to 128 or more, an invalid code to 192 or more.
inline constexpr unsigned kLastPlace = 63;
inline constexpr unsigned kEndOfBlock = 128;
inline constexpr unsigned kBadCode = 255;

/// Whether a valid block may end at `k` in a scan up to the coefficient `last`.
[[nodiscard]] inline bool EndsWell(unsigned k, unsigned last = kLastPlace) {
  return k == last || k / 64 == kEndOfBlock / 64;
}

/// A decoded Huffman code with the value bits that follow it.
struct Symbol {
  unsigned length;  ///< bits of the code and the value
  unsigned move;    ///< how far it advances `k`
  int value;        ///< the coefficient; at the end of a block, the number of further blocks that end with it
};

/// The codes of one Huffman table.
class HuffmanCode {
 public:
  /// Returns false if the code lengths do not form a valid prefix code.
  [[nodiscard]] bool Set(const JHUFF_TBL& table);
  [[nodiscard]] bool HasSymbolsAbove(unsigned symbol) const;
  [[nodiscard]] bool HasValuesAbove(unsigned bits) const;
  /// Whether a symbol ends several blocks.
  [[nodiscard]] bool EndsBlocks() const;

  /// Finds the code at the top of `bits`. Returns length 0 if there is none.
  struct Code {
    unsigned length;
    unsigned symbol;
  };
  [[nodiscard]] Code Find(std::uint64_t bits) const;
  /// Decodes the code at the top of `bits` and its value. At least 31 bits must be valid.
  [[nodiscard]] Symbol Read(std::uint64_t bits) const;

 private:
  std::array<std::uint32_t, 17> limit_ = {};  // codes of this length, left-aligned in 16 bits, are below this
  std::array<std::uint32_t, 17> shift_ = {};  // added to a code of this length gives the index of its symbol
  std::array<std::uint8_t, 256> symbols_ = {};
  unsigned count_ = 0;
};

/// Decodes symbols with their values, by one table lookup if code and value are short.
class ValueTable {
 public:
  explicit ValueTable(const HuffmanCode& code);
  /// Returns the next symbol without consuming it. The window must hold at least 31 bits.
  [[nodiscard]] Symbol Read(const BitWindow& window) const {
    std::uint32_t entry = entries_[window.Peek(kIndexBits)];
    if (entry == 0) [[unlikely]]
      entry = EntryOf(window.Bits());
    return SymbolOf(entry);
  }
  /// The same for a symbol of up to 11 bits; returns length 0 for longer ones. The window must hold at least 11 bits.
  [[nodiscard]] Symbol ReadShort(const BitWindow& window) const { return SymbolOf(entries_[window.Peek(kIndexBits)]); }
  /// Consumes symbols and calls `take` with each until it returns false.
  template <typename Take>
  [[gnu::always_inline]] void ReadWhile(BitWindow& window, Take take) const {
    const auto pass = [&](const Symbol& symbol) {
      window.Drop(symbol.length);
      return take(symbol);
    };
    for (;;) {
      window.Refill();
      if (!pass(Read(window))) return;
      // The window still holds enough bits for two short symbols.
      for (int i = 0; i < 2; ++i) {
        const Symbol symbol = ReadShort(window);
        if (symbol.length == 0) break;
        if (!pass(symbol)) return;
      }
    }
  }

 private:
  static constexpr unsigned kIndexBits = 11;

  static Symbol SymbolOf(std::uint32_t entry) {
    return {entry & 0xFF, entry >> 8 & 0xFF, static_cast<std::int32_t>(entry) >> 16};
  }
  [[nodiscard]] std::uint32_t EntryOf(std::uint64_t bits) const;

  HuffmanCode code_;
  std::vector<std::uint32_t> entries_;  // value, move, length; 0 for symbols longer than the index
};

/// Skips the coefficients of a block without decoding their values, several symbols in one lookup.
class SkipTable {
 public:
  explicit SkipTable(const HuffmanCode& code);
  /// Consumes the AC coefficients of a block and returns the `k` at which they end.
  [[nodiscard]] unsigned Skip(BitWindow& window) const {
    unsigned k = 0;
    do {
      window.Refill();
      k += Pass(window, k);
      if (k >= kLastPlace) break;
      k += Pass(window, k);
    } while (k < kLastPlace);
    return k;
  }

 private:
  static constexpr unsigned kIndexBits = 12;

  // A refill leaves 56 bits, and the first of two lookups consumes at most 26 of them.
  [[nodiscard]] unsigned Pass(BitWindow& window, unsigned k) const {
    unsigned entry = entries_[window.Peek(kIndexBits)];
    if (entry == 0 || !MayBePassed(k + (entry >> 8))) [[unlikely]]
      entry = PassSingly(window.Bits());
    window.Drop(entry & 0xFF);
    return entry >> 8;
  }
  // An entry is not usable if a symbol before its last one reached the end of the block: the rest belongs to the next
  // block.
  static bool MayBePassed(unsigned k) { return k <= kLastPlace || k - kEndOfBlock < kLastPlace; }
  [[nodiscard]] std::uint16_t EntryOf(unsigned index) const;
  [[nodiscard]] unsigned PassSingly(std::uint64_t bits) const;

  HuffmanCode code_;
  std::vector<std::uint16_t> entries_;  // move, length; 0 if the first code is longer than the index
};

}  // namespace vantorium::image::jpeg
