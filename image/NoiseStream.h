#pragma once

#include <cstdint>

namespace vantorium::image {

/// The random numbers of one picture row. Number `index` is a pure function of the row's key and the index, so numbers
/// may be read in any order.
class NoiseRow {
 public:
  explicit NoiseRow(std::uint64_t key)
      : first_(static_cast<std::uint32_t>(key >> 32)), second_(static_cast<std::uint32_t>(key)) {}

  /// 24 random bits: the index is keyed twice between the steps of a 32-bit mixer in which each input bit flips each
  /// output bit half of the time.
  [[nodiscard]] std::uint32_t Bits(std::uint32_t index) const {
    std::uint32_t h = index ^ first_;
    h = (h ^ (h >> 16)) * 0x21F0AAADU;
    h = ((h ^ (h >> 15)) + second_) * 0xD35A2D97U;
    return (h ^ (h >> 15)) >> 8;
  }
  /// Uniform in [0, 1): the bits as a float.
  [[nodiscard]] float Uniform(std::uint32_t index) const { return static_cast<float>(Bits(index)) / 16777216.0F; }

 private:
  std::uint32_t first_;
  std::uint32_t second_;
};

/// The random numbers for the pixels of one picture. They depend only on the seed, the picture's number and the
/// position in the picture, so pictures may be processed in any order or in parallel with the same result.
class NoiseStream {
 public:
  /// Row(0) is row `firstRow` of the picture, so a picture may be processed in parts.
  NoiseStream(std::uint64_t seed, std::uint64_t picture, std::int32_t firstRow = 0);

  /// Begins the next pass over the picture, which has its own numbers.
  void NextPass();
  /// Returns the numbers of a row in the current pass.
  [[nodiscard]] NoiseRow Row(std::int32_t row) const;

  /// The index of a row's number: one for each byte column, and another one for each pixel.
  [[nodiscard]] static constexpr std::uint32_t OfByte(std::int32_t column) {
    return static_cast<std::uint32_t>(column);
  }
  [[nodiscard]] static constexpr std::uint32_t OfPixel(std::int32_t column) {
    return 0x80000000U | static_cast<std::uint32_t>(column);
  }

 private:
  std::uint64_t key_;
  std::int32_t firstRow_;
};

}  // namespace vantorium::image
