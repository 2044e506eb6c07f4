#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

/// The images of the gallery: copied, or decoded, changed and encoded. Without images to be made, their sizes are read
/// from the target.
[[nodiscard]] PhaseResult ProduceImages(const RunContext& context);

/// The thumbnails of the gallery.
[[nodiscard]] PhaseResult ProduceThumbnails(const RunContext& context);

}  // namespace vantorium
