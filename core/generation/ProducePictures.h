#pragma once

#include "core/generation/RunContext.h"

namespace vantorium::generation {

/// Produces the images of the gallery, copied or decoded, changed and encoded, and then its thumbnails. If no images
/// are to be made, reads their sizes from the target.
///
/// Worker threads make the pictures slightly ahead of their turn, an image together with its thumbnail. Everything
/// visible (announcements, polls, files, failures) happens here, picture by picture, as if each were made at its turn.
[[nodiscard]] PhaseResult ProducePictures(const RunContext& context);

}  // namespace vantorium::generation
