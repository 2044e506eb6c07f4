#pragma once

#include "image/Orientation.h"
#include "image/cDIBSection.h"

namespace vantorium::image::literal {

/// Returns the picture as it stands upright, pixel by pixel: what UprightRows and TurnUpright must give. The reference
/// for tests.
[[nodiscard]] cDIBSection TurnLiteral(const cDIBSection& stored, Orientation orientation);

}  // namespace vantorium::image::literal
