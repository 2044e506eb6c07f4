#pragma once

#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <filesystem>
#include <stop_token>

namespace vantorium {

/// By what both sides of a picture can be divided while it still has the pixels to be shown fitted into `box`: 1, 2, 4
/// or 8.
[[nodiscard]] int DivisorFor(PictureSize picture, PictureSize box);

/// Decodes a JPEG file into `dib` for a look at it, no larger than `box` needs. False for what LoadJPEGImage refuses,
/// and after a stop; `dib` is then undefined.
[[nodiscard]] bool LoadReducedPicture(cDIBSection& dib, const std::filesystem::path& file, PictureSize box,
                                      const std::stop_token& stop = {});

}  // namespace vantorium
