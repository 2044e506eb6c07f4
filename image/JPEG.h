#pragma once

#include "image/cDIBSection.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium::image {

// The interface to JPEG files for the rest of the program. Reading never throws or shows anything; the caller decides
// what to say. It returns false for any file that cannot be read completely: missing, empty, not a regular file, not a
// JPEG file, more than 8 bits per sample, damaged or truncated.

/// Reads the size in pixels from the header of a JPEG file. Returns false, leaving both unchanged, if the header cannot
/// be read.
[[nodiscard]] bool ReadJPEGSize(const std::filesystem::path& file, std::int32_t& width, std::int32_t& height);

/// Decodes a JPEG file into `dib`. If the header cannot be read, returns false and leaves `dib` unchanged. After that
/// the old image is released: `dib` has the file's size, with undefined contents if decoding fails, or is empty if the
/// header claims more pixels than a file of that length can hold.
[[nodiscard]] bool LoadJPEGImage(cDIBSection& dib, const std::filesystem::path& file);

/// Returns `dib` encoded as a baseline JPEG file. `quality` is on the scale of the Independent JPEG Group, 1 to 100.
/// Throws RuntimeFailure JPEGLibrary with "Failed to save to JPG " and the reason.
[[nodiscard]] std::string EncodeJPEG(const cDIBSection& dib, std::int32_t quality);

/// Writes the bytes of a JPEG file atomically: `file` never names a partial file. Throws like EncodeJPEG.
void WriteJPEGFile(const std::filesystem::path& file, std::string_view jpeg);

/// Encodes `dib` into a file. Replaces an existing file, unless its owner may not write it. Throws like EncodeJPEG.
void SaveJPEGImage(const cDIBSection& dib, const std::filesystem::path& file, std::int32_t quality);

}  // namespace vantorium::image
