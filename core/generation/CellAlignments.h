#pragma once

#include "core/GalleryProject.h"

#include <string_view>

namespace vantorium {

/// Where a caption or a description stands: left, right, above or below a picture. A description's setting has the same
/// numbers, a caption's setting begins with 0 for left.
enum class Placement : Choice { None = 0, Left = 1, Right = 2, Above = 3, Below = 4 };

[[nodiscard]] Placement DescriptionPlacement(Choice setting);
[[nodiscard]] Placement CaptionPlacement(Choice setting);

/// The alignment attributes of the table cells of a text and of the picture it belongs to.
struct CellPair {
  std::string_view text;
  std::string_view picture;
};

// The alignment is 0, 1 or 2: top, centre, bottom beside a picture, left, centre, right above and below it. All is
// empty for an alignment or a placement that is not in the tables.

[[nodiscard]] CellPair ThumbnailDescriptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ThumbnailCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] CellPair ImageCaptionCells(Choice alignment, Placement placement);
[[nodiscard]] std::string_view ImageDescriptionCell(Choice alignment, Placement placement);

}  // namespace vantorium
