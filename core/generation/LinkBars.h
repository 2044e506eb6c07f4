#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// The bar of links of thumbnail page `page`; empty when it is the only one. Shows run.DirectLinksText when the project
/// wants direct links.
[[nodiscard]] std::string BuildThumbnailPageBar(const RunState& run, std::int32_t page);

/// The bar of links of the wrapper page of `image`; empty when it is the only image. Throws as ThumbnailPageOfImage in
/// the single frame layout, where it has a link to the thumbnails.
[[nodiscard]] std::string BuildImagePageBar(const RunState& run, std::int32_t image);

}  // namespace vantorium
