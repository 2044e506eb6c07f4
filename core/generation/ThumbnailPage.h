#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// The number of images that stand on a thumbnail page whose first image is `firstImage`: the page's cells, or what is
/// left of the images. Rows and columns that are no numbers count as 0. Throws RuntimeFailure Overflow when one does
/// not fit 32 bits.
[[nodiscard]] std::int32_t ImagesOnThumbnailPage(const RunState& run, std::int32_t firstImage);

/// Thumbnail page `page`, a table of thumbnails from `firstImage` on. Reads run.DirectLinksText. Throws what its tags
/// and ImagesOnThumbnailPage throw.
[[nodiscard]] std::string BuildThumbnailPage(const RunState& run, std::int32_t page, std::int32_t firstImage);

}  // namespace vantorium
