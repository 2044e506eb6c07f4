#include "image/TransparentCopy.h"

#include "image/VectorClones.h"

#include <algorithm>
#include <array>

namespace vantorium::image {
namespace {

// Rows are processed in blocks that stay in the L1 cache from one pass to the next. A block is large enough for the
// stores of one pass to be visible to the next without a stall. No pass branches.
constexpr std::size_t kBlockBytes = 3072;
using Block = std::array<std::uint8_t, kBlockBytes>;

/// The three bytes of a color, repeated, in the order of a picture's bytes.
Block Repeated(std::uint32_t color) {
  Block block;
  for (std::size_t i = 0; i < block.size(); ++i) block[i] = static_cast<std::uint8_t>(color >> (16 - 8 * (i % 3)));
  return block;
}

/// 255 at the first byte of each pixel, else 0.
constexpr Block FirstBytes() {
  Block block = {};
  for (std::size_t i = 0; i < block.size(); i += 3) block[i] = 255;
  return block;
}
constexpr Block kFirstBytes = FirstBytes();

/// Marks the pixels of a block: at each pixel's first byte 255 if it differs from the pattern's pixel, else 0; 0 at the
/// other bytes and at the two entries before the block.
using Marks = std::array<std::uint8_t, kBlockBytes + 2>;

/// `bytes` are those of whole pixels, at least one.
VANTORIUM_VECTOR_CLONES
void MarkDifferent(const std::uint8_t* source, const std::uint8_t* pattern, std::size_t bytes, std::uint8_t* marks) {
  marks[0] = marks[1] = 0;
  for (std::size_t i = 0; i < bytes - 2; ++i) {
    const auto difference = static_cast<std::uint8_t>((source[i] ^ pattern[i]) | (source[i + 1] ^ pattern[i + 1]) |
                                                      (source[i + 2] ^ pattern[i + 2]));
    const std::uint8_t differs = difference != 0 ? 255 : 0;
    marks[i + 2] = static_cast<std::uint8_t>(differs & kFirstBytes[i]);
  }
  marks[bytes] = marks[bytes + 1] = 0;
}

/// 255 if the pixel of byte `i` is marked, else 0.
inline std::uint8_t MarkOf(const std::uint8_t* marks, std::size_t i) {
  return static_cast<std::uint8_t>(marks[i] | marks[i + 1] | marks[i + 2]);
}

/// `one` where the mask is 255, `other` where it is 0.
inline std::uint8_t Choose(std::uint8_t mask, std::uint8_t one, std::uint8_t other) {
  return static_cast<std::uint8_t>(other ^ ((one ^ other) & mask));
}

/// (sum + 50) / 100, minus one if that is odd and there was a tie, all in 16 bits. Dividing by multiplication is exact
/// for every possible sum, at most 25550.
inline std::uint8_t Mixed(std::uint8_t source, std::uint8_t target, std::uint16_t alpha, std::uint16_t rest) {
  const auto sum = static_cast<std::uint16_t>(target * rest + source * alpha + 50);
  const auto high = static_cast<std::uint16_t>((std::uint32_t{sum} * 41944U) >> 16);
  const auto quotient = static_cast<std::uint16_t>(high >> 6);
  const auto tie = static_cast<std::uint16_t>(static_cast<std::uint16_t>(quotient * 100) == sum ? 1 : 0);
  return static_cast<std::uint8_t>(quotient - (tie & quotient));
}

VANTORIUM_VECTOR_CLONES
void BlendMarked(const std::uint8_t* source, std::uint8_t* target, std::size_t bytes, const std::uint8_t* marks,
                 std::uint16_t alpha) {
  const auto rest = static_cast<std::uint16_t>(100 - alpha);
  for (std::size_t i = 0; i < bytes; ++i) {
    target[i] = Choose(MarkOf(marks, i), Mixed(source[i], target[i], alpha, rest), target[i]);
  }
}

VANTORIUM_VECTOR_CLONES
void CopyUnmarked(const std::uint8_t* source, std::uint8_t* target, std::size_t bytes, const std::uint8_t* marks) {
  for (std::size_t i = 0; i < bytes; ++i) target[i] = Choose(MarkOf(marks, i), target[i], source[i]);
}

/// Marks the pixels of the source that differ from the pattern, block by block, and calls
/// `work(source, target, bytes, marks)`.
template <typename Work>
void ForEachBlock(const cDIBSection& source, cDIBSection& target, const Block& pattern, Work work) {
  const auto rowBytes = static_cast<std::size_t>(source.width()) * 3;
  Marks marks;
  for (std::int32_t y = 0; y < source.height(); ++y) {
    for (std::size_t start = 0; start < rowBytes; start += kBlockBytes) {
      const std::size_t bytes = std::min(kBlockBytes, rowBytes - start);
      MarkDifferent(source.Row(y) + start, pattern.data(), bytes, marks.data());
      work(source.Row(y) + start, target.Row(y) + start, bytes, marks.data());
    }
  }
}

}  // namespace

bool TransparentCopy(const cDIBSection& source, cDIBSection& target, std::uint32_t key, std::uint8_t alpha) {
  if (source.width() > target.width() || source.height() > target.height()) return false;
  if (source.DIBSectionBitsPtr() == nullptr || target.DIBSectionBitsPtr() == nullptr) return false;
  if (alpha < 100) {
    ForEachBlock(source, target, Repeated(key),
                 [alpha](const std::uint8_t* from, std::uint8_t* to, std::size_t bytes, const std::uint8_t* marks) {
                   BlendMarked(from, to, bytes, marks, alpha);
                 });
  } else {
    ForEachBlock(source, target, Repeated(~key), CopyUnmarked);
  }
  return true;
}

}  // namespace vantorium::image
