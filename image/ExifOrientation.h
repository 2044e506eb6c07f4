#pragma once

#include "image/Orientation.h"

#include <optional>
#include <string_view>

namespace vantorium::image {

/// Returns the orientation that Exif data say: the contents of an APP1 segment from "Exif" on. Returns nullopt if they
/// say none: another kind of segment, no such tag, a value outside 1 to 8, or data that are cut off or wrong.
[[nodiscard]] std::optional<Orientation> OrientationInExif(std::string_view segment);

}  // namespace vantorium::image
