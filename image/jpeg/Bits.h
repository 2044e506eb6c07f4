#pragma once

#include <cstddef>
#include <cstdint>

namespace vantorium::image::jpeg {

/// Reads bits from entropy-coded data without stuffed zero bytes. Buffers up to 63 bits; the next one is the highest.
/// A refill loads 8 bytes at once, so 8 bytes beyond the end of the data must be readable.
class BitWindow {
 public:
  explicit BitWindow(const std::uint8_t* next) : next_(next) {}

  /// Loads bits until at least 56 are buffered.
  void Refill() {
    bits_ |= EightBytes(next_) >> count_;
    next_ += (63 - count_) >> 3;
    count_ |= 56;
  }
  /// The buffered bits, the next one on top.
  [[nodiscard]] std::uint64_t Bits() const { return bits_; }
  /// The next `count` bits as a number; `count` is at least 1.
  [[nodiscard]] std::size_t Peek(unsigned count) const { return static_cast<std::size_t>(bits_ >> (64 - count)); }
  void Drop(unsigned count) {
    bits_ <<= count;
    count_ -= count;
  }

  /// The address that the next refill loads from.
  [[nodiscard]] const std::uint8_t* Next() const { return next_; }
  /// Call this after the data were moved: `next` is the new address of what Next() pointed to.
  void MoveTo(const std::uint8_t* next) { next_ = next; }
  /// The number of bits left before `end`. Negative if more were consumed than the data have.
  [[nodiscard]] std::ptrdiff_t BitsBefore(const std::uint8_t* end) const {
    return (end - next_) * 8 + static_cast<std::ptrdiff_t>(count_);
  }

 private:
  // Compilers turn this into a single load.
  static std::uint64_t EightBytes(const std::uint8_t* at) {
    const auto byte = [at](int i) { return static_cast<std::uint64_t>(at[i]) << (56 - 8 * i); };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
  }

  std::uint64_t bits_ = 0;  // `count_` buffered bits; below them, bits that the next refill loads again
  unsigned count_ = 0;
  const std::uint8_t* next_;
};

}  // namespace vantorium::image::jpeg
