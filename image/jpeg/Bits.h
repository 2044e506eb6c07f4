#pragma once

#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// A window of up to 63 bits on entropy-coded data from which the stuffed zeros are gone. The first bit is the highest.
/// It reads up to 8 bytes behind the byte that it stands at; the owner of the data sees to it that they are there.
class BitWindow {
 public:
  explicit BitWindow(const std::uint8_t* next) : next_(next) {}

  /// Makes at least 56 bits known.
  void Refill() {
    bits_ |= EightBytes(next_) >> count_;
    next_ += (63 - count_) >> 3;
    count_ |= 56;
  }
  /// All known bits, the first one on top.
  [[nodiscard]] std::uint64_t Bits() const { return bits_; }
  /// The next `count` bits, at least one, as a number.
  [[nodiscard]] std::size_t Peek(unsigned count) const { return static_cast<std::size_t>(bits_ >> (64 - count)); }
  void Drop(unsigned count) {
    bits_ <<= count;
    count_ -= count;
  }

  /// Where the next refill reads.
  [[nodiscard]] const std::uint8_t* Next() const { return next_; }
  /// The same data stand elsewhere now.
  void MoveTo(const std::uint8_t* next) { next_ = next; }
  /// Bits that are still to be taken of the data that end at `end`; negative when more were taken than there were.
  [[nodiscard]] std::ptrdiff_t BitsBefore(const std::uint8_t* end) const {
    return (end - next_) * 8 + static_cast<std::ptrdiff_t>(count_);
  }

 private:
  // Compilers make one load of this.
  static std::uint64_t EightBytes(const std::uint8_t* at) {
    const auto byte = [at](int i) { return static_cast<std::uint64_t>(at[i]) << (56 - 8 * i); };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
  }

  std::uint64_t bits_ = 0;  // the known bits and, below them, some that the next refill sets again
  unsigned count_ = 0;
  const std::uint8_t* next_;
};

}  // namespace vantorium::image::jpeg
