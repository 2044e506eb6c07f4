#pragma once

#include "core/GalleryProject.h"

#include <string_view>

namespace vantorium {

/// Position of a caption or description relative to its picture. A description's setting has the same numbers; a
/// caption's setting starts with 0 for left.
enum class Placement : Choice { None = 0, Left = 1, Right = 2, Above = 3, Below = 4 };

[[nodiscard]] Placement DescriptionPlacement(Choice setting);
[[nodiscard]] Placement CaptionPlacement(Choice setting);

/// Alignment attributes of the table cells of a text and of its picture.
struct CellPair {
  std::string_view text;
  std::string_view picture;
};

// `alignment` is 0, 1 or 2: top, center, bottom beside a picture; left, center, right above or below it. The results
// are empty for an alignment or placement outside the tables.

[[nodiscard]] CellPair ThumbnailDescriptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ThumbnailCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ImageCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] std::string_view ImageDescriptionCell(Choice alignment, Placement placement);

}  // namespace vantorium
