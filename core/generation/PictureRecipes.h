#pragma once

#include "core/generation/RunState.h"
#include "env/Screen.h"
#include "image/Picture.h"

#include <optional>

namespace vantorium {

/// Makes the painters of the watermarks that the project uses, one for each target and for the whole run. `texts` must
/// live as long as the run.
void PrepareWatermarks(RunState& run, const Screen& screen, const TextRaster& texts);

/// What is to be made of a source for the image's file; nothing when the file is copied as it is.
[[nodiscard]] std::optional<PictureRecipe> ImageRecipe(const RunState& run, std::int32_t image);

/// What is to be made of a source for the thumbnail: always a file of its own, from the source and not from the image.
[[nodiscard]] PictureRecipe ThumbnailRecipe(const RunState& run, std::int32_t image);

}  // namespace vantorium
