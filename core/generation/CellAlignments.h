#pragma once

#include "core/Choices.h"

#include <string_view>

namespace vantorium {

/// Alignment attributes of the table cells of a text and of its picture.
struct CellPair {
  std::string_view text;
  std::string_view picture;
};

// `alignment` is the number of an Alignment. The results are empty for an alignment or placement outside the tables.

[[nodiscard]] CellPair ThumbnailDescriptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ThumbnailCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ImageCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] std::string_view ImageDescriptionCell(Choice alignment, Placement placement);

}  // namespace vantorium
