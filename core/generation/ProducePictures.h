#pragma once

#include "core/generation/RunContext.h"

namespace vantorium {

/// The images of the gallery, copied or decoded, changed and encoded, and then its thumbnails. Without images to be
/// made, their sizes are read from the target.
///
/// Workers make the pictures a little ahead of their turn, an image together with its thumbnail. Everything that shows
/// (announcements, polls, files, failures) happens here, picture by picture, as if each were made at its turn.
[[nodiscard]] PhaseResult ProducePictures(const RunContext& context);

}  // namespace vantorium
