#pragma once

#include "core/generation/RunState.h"
#include "env/Screen.h"
#include "image/Picture.h"

#include <optional>

namespace vantorium::generation {

/// Creates the watermark painters that the project uses, one for images and one for thumbnails, for the whole run.
/// `texts` must live as long as the run.
void PrepareWatermarks(RunState& run, const env::Screen& screen, const image::TextRaster& texts);

/// Whether the files of images are plain copies of their sources.
[[nodiscard]] bool AreImagesCopied(const core::GalleryProject& project);

/// Returns how to make the image's file from its source, or nullopt if the file is copied unchanged.
[[nodiscard]] std::optional<image::PictureRecipe> ImageRecipe(const RunState& run, std::int32_t image);

/// Returns how to make the thumbnail: always a separate file, made from the source and not from the image.
[[nodiscard]] image::PictureRecipe ThumbnailRecipe(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
