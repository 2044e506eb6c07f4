#pragma once

#include "image/PangoHandles.h"

#include <string>
#include <vector>

namespace vantorium::image {

/// Returns the names under which a LogFont selects a font of `map` itself rather than a substitute: every name of each
/// font, since a width of a family may have its own name. Sorted and unique, ignoring ASCII case.
[[nodiscard]] std::vector<std::string> FaceNamesOf(PangoFontMap* map);

}  // namespace vantorium::image
