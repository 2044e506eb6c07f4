#pragma once

#include "image/cDIBSection.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium {

// JPEG files as the rest of the program sees them. Reading never shows or throws anything; the caller decides what to
// say. It answers false for whatever can't be read in whole: what is missing, empty, no regular file, no JPEG file, of
// more than 8 bits a sample, damaged or cut off.

/// Reads the size in pixels that the header of a JPEG file states. False, with both left untouched, when that can't be
/// read.
[[nodiscard]] bool ReadJPEGSize(const std::filesystem::path& file, std::int32_t& width, std::int32_t& height);

/// Decodes a JPEG file into `dib`. False before the header was read leaves `dib` as it was. Behind that its old image
/// is gone: it has the file's size, with undefined contents when the decoding failed, or is empty when the header
/// claims more pixels than a file of that length can hold.
[[nodiscard]] bool LoadJPEGImage(cDIBSection& dib, const std::filesystem::path& file);

/// The bytes of a baseline JPEG file of `dib`. `quality` is on the scale of the Independent JPEG Group, 1 to 100.
/// Throws RuntimeFailure JPEGLibrary, "Failed to save to JPG " and the reason.
[[nodiscard]] std::string EncodeJPEG(const cDIBSection& dib, std::int32_t quality);

/// Writes the bytes of a JPEG file under a name that only ever shows a whole file. Throws as EncodeJPEG.
void WriteJPEGFile(const std::filesystem::path& file, std::string_view jpeg);

/// Encodes `dib` into a file. An old file is replaced, one that its owner may not write is not. Throws as EncodeJPEG.
void SaveJPEGImage(const cDIBSection& dib, const std::filesystem::path& file, std::int32_t quality);

}  // namespace vantorium
