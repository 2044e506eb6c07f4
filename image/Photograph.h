#pragma once

#include "image/Corrections.h"
#include "image/cDIBSection.h"

#include <cstdint>
#include <filesystem>

namespace vantorium::image {

// ReadJPEGSize and LoadJPEGImage for photographs that are corrected. They return false for the same files.

/// Like ReadJPEGSize; the size is that of the upright photograph if `upright` is set.
[[nodiscard]] bool ReadPhotographSize(const std::filesystem::path& file, bool upright, std::int32_t& width,
                                      std::int32_t& height);

/// Like LoadJPEGImage, with the corrections made. Also returns false if there is no memory for turning the picture.
[[nodiscard]] bool LoadPhotograph(cDIBSection& dib, const std::filesystem::path& file, Corrections corrections);

/// Makes the corrections in a whole picture that was decoded from `file`, in its own or a reduced size. Returns false
/// if there is no memory for turning it.
[[nodiscard]] bool Correct(cDIBSection& dib, const std::filesystem::path& file, Corrections corrections);

}  // namespace vantorium::image
