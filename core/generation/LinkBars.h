#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Returns the link bar of thumbnail page `page`; empty if it is the only page. Includes run.DirectLinksText if the
/// project uses direct links.
[[nodiscard]] std::string BuildThumbnailPageBar(const RunState& run, std::int32_t page);

/// Returns the link bar of the wrapper page of `image`; empty if it is the only image. In the single-frame layout it
/// has a link to the thumbnails and throws like ThumbnailPageOfImage.
[[nodiscard]] std::string BuildImagePageBar(const RunState& run, std::int32_t image);

}  // namespace vantorium::generation
