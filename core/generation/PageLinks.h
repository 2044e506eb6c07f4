#pragma once

#include "core/GalleryTargets.h"
#include "core/generation/RunState.h"

#include <cstdint>
#include <string>

namespace vantorium::generation {

/// Returns the settings of the link of kind `kind`.
[[nodiscard]] const core::LinkSettings& LinkOf(const core::GalleryProject& project, core::LinkKind kind);

/// Returns the opening tag of a link on image or page `current` of `total`, without its `</A>`. Except for Index, empty
/// at the end of the sequence and for a total of 1. For Index, throws RuntimeFailure DivisionByZero like
/// ThumbnailPageOfImage.
[[nodiscard]] std::string BuildLinkAnchor(const RunState& run, core::LinkKind kind, std::int32_t current,
                                          std::int32_t total);

/// Returns the image tag of a link's graphic on image or page `current` of `total`; at the end of the sequence, that of
/// its disabled graphic. Empty for a total of 1.
[[nodiscard]] std::string BuildLinkGraphic(const RunState& run, core::LinkKind kind, std::int32_t current,
                                           std::int32_t total);

/// Returns the thumbnail page that shows `image`. Throws RuntimeFailure DivisionByZero if a page holds no thumbnails.
[[nodiscard]] std::int32_t ThumbnailPageOfImage(const core::GalleryProject& project, std::int32_t image);

}  // namespace vantorium::generation
