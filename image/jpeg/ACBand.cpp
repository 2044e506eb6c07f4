#include "image/jpeg/ACBand.h"

#include "image/VectorClones.h"

#include <bit>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

std::uint64_t BitsUpTo(unsigned last) {
  return ~std::uint64_t{0} >> (63 - last);
}

// Without the lowest `count` bits. Most runs are short, and branches would often be mispredicted.
[[gnu::always_inline]] inline std::uint64_t WithoutLowest(std::uint64_t bits, unsigned count) {
  for (; count > 3; --count) bits &= bits - 1;
  bits ^= (bits ^ (bits & (bits - 1))) & -std::uint64_t{count & 1};
  const std::uint64_t twoLess = bits & (bits - 1);
  return bits ^ ((bits ^ (twoLess & (twoLess - 1))) & -std::uint64_t{count >> 1});
}

/// The bits that correct the known coefficients of a block, the last one lowest.
class Corrections {
 public:
  // Takes a bit for each of `known`. The window holds at least 32 bits.
  [[gnu::always_inline]] void Take(BitWindow& window, std::uint64_t known) {
    auto count = static_cast<unsigned>(std::popcount(known));
    for (; count > 32; count -= 32) {
      bits_ = bits_ << 32 | window.Peek(32);
      window.Drop(32);
      window.Refill();
    }
    bits_ = bits_ << count | window.Bits() >> 1 >> (63 - count);
    window.Drop(count);
  }
  // Makes the values larger, whatever their sign. `known` are all those for which bits were taken.
  void Apply(std::uint64_t known, std::int16_t* values, int unit) const {
    if (bits_ == 0) return;
    std::uint64_t bits = bits_ << (64 - std::popcount(known));
    for (; known != 0; known &= known - 1, bits <<= 1) {
      std::int16_t& value = values[std::countr_zero(known)];
      const int correction = bits >> 63 != 0 ? unit : 0;
      const int sign = value >> 15;
      value = static_cast<std::int16_t>(value + ((correction ^ sign) - sign));
    }
  }

 private:
  std::uint64_t bits_ = 0;
};

/// The coefficients that a refining scan finds among the known ones of a block.
struct Found {
  // `place` is its bit, `value` 1, -1 or 0 for none.
  [[gnu::always_inline]] void Add(std::uint64_t place, int value) {
    all |= place & -static_cast<std::uint64_t>(value & 1);
    positive |= place & -static_cast<std::uint64_t>(value == 1);
  }
  void Write(std::int16_t* values, int unit) const {
    for (std::uint64_t rest = all; rest != 0; rest &= rest - 1) {
      const bool isPositive = (positive & rest & -rest) != 0;
      values[std::countr_zero(rest)] = static_cast<std::int16_t>(isPositive ? unit : -unit);
    }
  }

  std::uint64_t all = 0;
  std::uint64_t positive = 0;
};

}  // namespace

ACBand::ACBand(SegmentReader& reader, const ScanHeader& header, ValueTable table)
    : reader_(reader),
      table_(std::move(table)),
      first_(header.first),
      last_(header.last),
      unit_(1 << header.lowest),
      band_(BitsUpTo(header.last) & ~BitsUpTo(header.first - 1)),
      window_(reader.BeginScan()) {}

bool ACBand::BeginBlock(BitWindow& window) {
  return reader_.BeginMCU(window, [this] { return endedBlocks_ == 0; });
}

// Reads the coefficients after place `k`, where none is known. Local copies stay in registers.
[[gnu::always_inline]] inline bool ACBand::ReadNew(BitWindow& shared, unsigned k, std::uint64_t& notZero,
                                                   std::int16_t* values) {
  BitWindow window = shared;
  std::uint64_t found = notZero;
  const unsigned last = last_;
  table_.ReadWhile(window, [&](const Symbol& symbol) {
    k += symbol.move;
    if (k > last) {
      endedBlocks_ = static_cast<unsigned>(symbol.value);
      return false;
    }
    found |= std::uint64_t{symbol.value != 0} << k;
    if (values != nullptr && symbol.value != 0) values[k] = static_cast<std::int16_t>(symbol.value * unit_);
    return k < last;
  });
  shared = window;
  notZero = found;
  return EndsWell(k, last);
}

// A run counts zeros only; the known coefficients that it passes are corrected. After the last known one the scan is
// like the first.
[[gnu::always_inline]] inline bool ACBand::RefineBlock(BitWindow& shared, std::uint64_t& notZero,
                                                       std::int16_t* values) {
  BitWindow window = shared;
  const std::uint64_t known = notZero & band_;
  std::uint64_t left = band_;
  Found found;
  Corrections corrections;
  while ((left & known) != 0 && endedBlocks_ == 0) {
    window.Refill();
    const Symbol symbol = table_.Read(window);
    window.Drop(symbol.length);
    if (symbol.move >= kEndOfBlock) {
      if (symbol.move != kEndOfBlock) return false;
      endedBlocks_ = static_cast<unsigned>(symbol.value) + 1;
      break;
    }
    const std::uint64_t zeros = WithoutLowest(left & ~known, symbol.move - 1);
    if (zeros == 0) return false;
    const std::uint64_t passed = zeros ^ (zeros - 1);
    corrections.Take(window, left & known & passed);
    left &= ~passed;
    found.Add(zeros & passed, symbol.value);
  }
  if (endedBlocks_ != 0) {
    --endedBlocks_;
    window.Refill();
    corrections.Take(window, left & known);
    left = 0;
  }
  shared = window;
  if (values != nullptr) {
    corrections.Apply(known, values, unit_);
    found.Write(values, unit_);
  }
  notZero |= found.all;
  return left == 0 || ReadNew(shared, static_cast<unsigned>(std::countr_zero(left)) - 1, notZero, values);
}

VANTORIUM_VECTOR_CLONES
bool ACBand::ReadFirst(const Coefficients::Row& row, std::size_t blocks) {
  BitWindow window = window_;
  for (std::size_t i = 0; i < blocks; ++i) {
    if (!BeginBlock(window)) return false;
    if (endedBlocks_ != 0) {
      --endedBlocks_;
    } else if (!ReadNew(window, first_ - 1, row.notZero[i], row.ValuesOf(i))) {
      return false;
    }
  }
  window_ = window;
  return true;
}

VANTORIUM_VECTOR_CLONES
bool ACBand::Refine(const Coefficients::Row& row, std::size_t blocks) {
  BitWindow window = window_;
  for (std::size_t i = 0; i < blocks; ++i) {
    if (!BeginBlock(window) || !RefineBlock(window, row.notZero[i], row.ValuesOf(i))) return false;
  }
  window_ = window;
  return true;
}

}  // namespace vantorium::image::jpeg
