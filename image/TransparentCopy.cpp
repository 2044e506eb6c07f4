#include "image/TransparentCopy.h"

#include "image/VectorClones.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace vantorium {
namespace {

// Rows are worked on in blocks of whole pixels that also fill whole vectors. Nothing in a block branches.
constexpr std::size_t kBlock = 96;
using Block = std::array<std::uint8_t, kBlock>;

/// The three bytes of a colour, over and over, in the order of a picture's bytes.
Block Repeated(std::uint32_t color) {
  Block block;
  for (std::size_t i = 0; i < kBlock; ++i) block[i] = static_cast<std::uint8_t>(color >> (16 - 8 * (i % 3)));
  return block;
}

/// 255 at the first byte of each pixel, else 0.
constexpr Block FirstBytes() {
  Block block = {};
  for (std::size_t i = 0; i < kBlock; i += 3) block[i] = 255;
  return block;
}
constexpr Block kFirstBytes = FirstBytes();

/// For each byte 255 when its pixel differs from the one in `pattern`, else 0.
inline void ComparePixels(const std::uint8_t* source, const std::uint8_t* pattern, std::uint8_t* differs) {
  std::array<std::uint8_t, kBlock + 2> bytes;
  for (std::size_t i = 0; i < kBlock; ++i) bytes[i] = source[i] == pattern[i] ? 0 : 255;
  bytes[kBlock] = bytes[kBlock + 1] = 0;
  // The answer of a pixel's three bytes is collected at its first byte and spread from there.
  std::array<std::uint8_t, kBlock + 2> pixels;
  pixels[0] = pixels[1] = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    pixels[i + 2] = static_cast<std::uint8_t>((bytes[i] | bytes[i + 1] | bytes[i + 2]) & kFirstBytes[i]);
  }
  for (std::size_t i = 0; i < kBlock; ++i) {
    differs[i] = static_cast<std::uint8_t>(pixels[i] | pixels[i + 1] | pixels[i + 2]);
  }
}

/// (n + 50) / 100, one less when it is odd and there was a tie: all of it in 16 bits. The quotient by multiplication is
/// exact for every sum that comes up, which is at most 25550.
inline std::uint8_t Mixed(std::uint8_t source, std::uint8_t target, std::uint16_t alpha) {
  const auto sum = static_cast<std::uint16_t>(target * (100 - alpha) + source * alpha + 50);
  const auto quotient = static_cast<std::uint16_t>((sum * 41944U) >> 22);
  const auto tie = static_cast<std::uint16_t>(static_cast<std::uint16_t>(quotient * 100) == sum ? 1 : 0);
  return static_cast<std::uint8_t>(quotient - (tie & quotient));
}

VANTORIUM_VECTOR_CLONES
void BlendBlocks(const std::uint8_t* source, std::uint8_t* target, std::size_t blocks, const std::uint8_t* key,
                 std::uint16_t alpha) {
  for (; blocks != 0; --blocks, source += kBlock, target += kBlock) {
    Block differs;
    ComparePixels(source, key, differs.data());
    for (std::size_t i = 0; i < kBlock; ++i) {
      const std::uint8_t mixed = Mixed(source[i], target[i], alpha);
      target[i] = static_cast<std::uint8_t>(target[i] ^ ((target[i] ^ mixed) & differs[i]));
    }
  }
}

VANTORIUM_VECTOR_CLONES
void CopyBlocks(const std::uint8_t* source, std::uint8_t* target, std::size_t blocks, const std::uint8_t* wanted) {
  for (; blocks != 0; --blocks, source += kBlock, target += kBlock) {
    Block differs;
    ComparePixels(source, wanted, differs.data());
    for (std::size_t i = 0; i < kBlock; ++i) {
      target[i] = static_cast<std::uint8_t>(source[i] ^ ((source[i] ^ target[i]) & differs[i]));
    }
  }
}

/// Takes one row through `work(source, target, blocks)`; what fills no block at its end goes by way of whole ones.
template <typename Work>
void ByBlocks(const std::uint8_t* source, std::uint8_t* target, std::size_t bytes, Work work) {
  const std::size_t whole = bytes / kBlock;
  work(source, target, whole);
  const std::size_t rest = bytes - whole * kBlock;
  if (rest == 0) return;
  Block lastSource = {};
  Block lastTarget = {};
  std::memcpy(lastSource.data(), source + whole * kBlock, rest);
  std::memcpy(lastTarget.data(), target + whole * kBlock, rest);
  work(lastSource.data(), lastTarget.data(), 1);
  std::memcpy(target + whole * kBlock, lastTarget.data(), rest);
}

template <typename Work>
void ForEachRow(const cDIBSection& source, cDIBSection& target, Work work) {
  const auto bytes = static_cast<std::size_t>(source.width()) * 3;
  for (std::int32_t y = 0; y < source.height(); ++y) ByBlocks(source.Row(y), target.Row(y), bytes, work);
}

}  // namespace

bool TransparentCopy(const cDIBSection& source, cDIBSection& target, std::uint32_t key, std::uint8_t alpha) {
  if (source.width() > target.width() || source.height() > target.height()) return false;
  if (source.DIBSectionBitsPtr() == nullptr || target.DIBSectionBitsPtr() == nullptr) return false;
  if (alpha < 100) {
    ForEachRow(source, target, [alpha, pattern = Repeated(key)](const auto* from, auto* to, std::size_t blocks) {
      BlendBlocks(from, to, blocks, pattern.data(), alpha);
    });
  } else {
    ForEachRow(source, target, [pattern = Repeated(~key)](const auto* from, auto* to, std::size_t blocks) {
      CopyBlocks(from, to, blocks, pattern.data());
    });
  }
  return true;
}

}  // namespace vantorium
