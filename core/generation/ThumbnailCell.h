#pragma once

#include "core/generation/PageText.h"
#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Appends the cell of one image to thumbnail page `page`.
void AddThumbnailCell(PageText& text, const RunState& run, std::int32_t page, std::int32_t image);

/// The line of a cell that shows the thumbnail: a link to the image, with caption and description around it.
[[nodiscard]] std::string ThumbnailCellContent(const RunState& run, std::int32_t page, std::int32_t image);

}  // namespace vantorium::generation
