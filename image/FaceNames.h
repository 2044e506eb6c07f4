#pragma once

#include "image/PangoHandles.h"

#include <string>
#include <vector>

namespace vantorium {

/// The names by which a LogFont gets a font of the map and no stand-in: all names of each font, since one of a family's
/// widths may have a name of its own. Each once and sorted, whatever the case of their letters.
[[nodiscard]] std::vector<std::string> FaceNamesOf(PangoFontMap* map);

}  // namespace vantorium
