#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Returns the number of images on a thumbnail page whose first image is `firstImage`: the number of its cells or of
/// the remaining images, whichever is smaller. Rows and columns that are not numbers count as 0. Throws RuntimeFailure
/// Overflow if one does not fit 32 bits.
[[nodiscard]] std::int32_t ImagesOnThumbnailPage(const RunState& run, std::int32_t firstImage);

/// Builds thumbnail page `page`, a table of thumbnails starting with `firstImage`. Reads run.DirectLinksText. Throws
/// whatever its tags and ImagesOnThumbnailPage throw.
[[nodiscard]] std::string BuildThumbnailPage(const RunState& run, std::int32_t page, std::int32_t firstImage);

}  // namespace vantorium::generation
