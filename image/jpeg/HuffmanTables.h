#pragma once

#include "image/jpeg/Bits.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

#include <jpeglib.h>

namespace vantorium::image::jpeg {

// Within a block, `k` is the place of the last coefficient that was read, in the order of the file: 0 is the first one,
// 63 the last. Every symbol moves it on. The end of a block moves it to 128 and more, a code that there is none of to
// 192 and more.
inline constexpr unsigned kLastPlace = 63;
inline constexpr unsigned kEndOfBlock = 128;
inline constexpr unsigned kBadCode = 255;

/// Whether the last symbol of a block left `k` where a block may end.
[[nodiscard]] inline bool EndsWell(unsigned k) {
  return k == kLastPlace || k / 64 == kEndOfBlock / 64;
}

/// What a code and the bits of its value say.
struct Symbol {
  unsigned length;  ///< bits of both
  unsigned move;    ///< how far it moves `k`
  int value;        ///< of the coefficient there
};

/// The codes of one table.
class HuffmanCode {
 public:
  /// False when there are no such codes.
  [[nodiscard]] bool Set(const JHUFF_TBL& table);
  [[nodiscard]] bool HasSymbolsAbove(unsigned symbol) const;

  /// The code that begins with the highest of 64 bits; length 0 for none.
  struct Code {
    unsigned length;
    unsigned symbol;
  };
  [[nodiscard]] Code Find(std::uint64_t bits) const;
  /// The same with its value. At least 31 bits are known.
  [[nodiscard]] Symbol Read(std::uint64_t bits) const;

 private:
  std::array<std::uint32_t, 17> limit_ = {};  // codes of this length are below, in 16 bits
  std::array<std::uint32_t, 17> shift_ = {};  // what makes a code's number of it
  std::array<std::uint8_t, 256> symbols_ = {};
  unsigned count_ = 0;
};

/// Reads symbols with their values: those that are not longer than the index at one go.
class ValueTable {
 public:
  explicit ValueTable(const HuffmanCode& code);
  /// The window holds at least 31 bits.
  [[nodiscard]] Symbol Read(const BitWindow& window) const {
    const Symbol symbol = ReadShort(window);
    return symbol.length != 0 ? symbol : code_.Read(window.Bits());
  }
  /// The window holds at least 12 bits. Length 0 for what is longer.
  [[nodiscard]] Symbol ReadShort(const BitWindow& window) const {
    const std::uint32_t entry = entries_[window.Peek(kIndexBits)];
    return {entry & 0xFF, entry >> 8 & 0xFF, static_cast<std::int32_t>(entry) >> 16};
  }

 private:
  static constexpr unsigned kIndexBits = 11;

  HuffmanCode code_;
  std::vector<std::uint32_t> entries_;  // value, move, length; 0 for what is longer
};

/// Passes over the coefficients of a block without their values, several symbols at a time.
class SkipTable {
 public:
  explicit SkipTable(const HuffmanCode& code);
  /// Passes over what follows the first coefficient of a block. Where `k` is then.
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

  // The window holds 56 bits, then at least 30.
  [[nodiscard]] unsigned Pass(BitWindow& window, unsigned k) const {
    unsigned entry = entries_[window.Peek(kIndexBits)];
    if (entry == 0 || !MayBePassed(k + (entry >> 8))) [[unlikely]]
      entry = PassSingly(window.Bits());
    window.Drop(entry & 0xFF);
    return entry >> 8;
  }
  // An entry may hold symbols of the next block when the last place was reached before its last symbol.
  static bool MayBePassed(unsigned k) { return k <= kLastPlace || k - kEndOfBlock < kLastPlace; }
  [[nodiscard]] std::uint16_t EntryOf(unsigned index) const;
  [[nodiscard]] unsigned PassSingly(std::uint64_t bits) const;

  HuffmanCode code_;
  std::vector<std::uint16_t> entries_;  // move, length; 0 where the first code is longer
};

}  // namespace vantorium::image::jpeg
