#pragma once

#include "core/Choices.h"

#include <string_view>

namespace vantorium::generation {

/// Alignment attributes of the table cells of a text and of its picture.
struct CellPair {
  std::string_view text;
  std::string_view picture;
};

// `alignment` is the number of an Alignment. The results are empty for an alignment or placement outside the tables.

[[nodiscard]] CellPair ThumbnailDescriptionCells(core::Choice alignment, core::Placement placement);
[[nodiscard]] CellPair ThumbnailCaptionCells(core::Choice alignment, core::Placement placement);
[[nodiscard]] CellPair ImageCaptionCells(core::Choice alignment, core::Placement placement);
[[nodiscard]] std::string_view ImageDescriptionCell(core::Choice alignment, core::Placement placement);

}  // namespace vantorium::generation
