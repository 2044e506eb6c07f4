#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include <jpeglib.h>

namespace vantorium::image {

// What the header of a JPEG file claims, once it has been read.

/// Returns the number of blocks of 8 x 8 samples in all components.
[[nodiscard]] std::uint64_t BlocksOf(const jpeg_decompress_struct& codec);

/// Returns whether a file of `bytes` bytes can hold the claimed blocks.
[[nodiscard]] bool CanHold(std::uint64_t bytes, const jpeg_decompress_struct& codec);

}  // namespace vantorium::image
