#pragma once

#include "image/Corrections.h"
#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <filesystem>
#include <stop_token>

namespace vantorium::ui {

/// Returns the divisor (1, 2, 4 or 8) by which both sides of a picture can be reduced while it still has enough pixels
/// to be shown fitted into `box`.
[[nodiscard]] int DivisorFor(image::PictureSize picture, image::PictureSize box);

/// Decodes a JPEG file into `dib` for viewing, no larger than `box` needs. Returns false for what LoadJPEGImage
/// refuses, and after a stop; `dib` is then undefined. The corrections are made in the reduced picture.
[[nodiscard]] bool LoadReducedPicture(image::cDIBSection& dib, const std::filesystem::path& file,
                                      image::PictureSize box, const std::stop_token& stop = {},
                                      image::Corrections corrections = {});

}  // namespace vantorium::ui
