#include "image/JPEGClaim.h"

#include <algorithm>

namespace vantorium::image {
namespace {

// Arithmetic coding has no minimum number of bits per block. Up to 2^18 blocks, about 11 megapixels, such a picture is
// accepted because decoding it is cheap.
constexpr std::uint64_t kBelievedBlocks = std::uint64_t{1} << 18;

}  // namespace

std::uint64_t BlocksOf(const jpeg_decompress_struct& codec) {
  std::uint64_t blocks = 0;
  for (int i = 0; i < codec.num_components; ++i) {
    const auto& component = codec.comp_info[i];
    blocks += std::uint64_t{component.width_in_blocks} * component.height_in_blocks;
  }
  return blocks;
}

// A Huffman code has at least one bit. A sequential block has two codes, for its first coefficient and its end; a
// progressive block is certain to have one only for its first coefficient.
bool CanHold(std::uint64_t bytes, const jpeg_decompress_struct& codec) {
  const std::uint64_t blocks = BlocksOf(codec);
  const std::uint64_t bits = bytes * 8;
  if (codec.arith_code != FALSE) return blocks <= std::max(bits, kBelievedBlocks);
  return blocks <= (codec.progressive_mode != FALSE ? bits : bits / 2);
}

}  // namespace vantorium::image
