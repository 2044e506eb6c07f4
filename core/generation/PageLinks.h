#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium {

/// The target of a page link.
enum class LinkKind : std::int16_t {
  FirstImage = 0,
  PreviousImage = 1,
  NextImage = 2,
  LastImage = 3,
  Index = 4,  ///< the thumbnail page of the current image, at its anchor
  FirstThumbnailPage = 5,
  PreviousThumbnailPage = 6,
  NextThumbnailPage = 7,
  LastThumbnailPage = 8,
};

/// The graphics of a link: its settings, and the names of their copies in the images folder, to which the extension of
/// the graphic is added.
struct LinkGraphics {
  LinkSettings GalleryProject::*link;
  std::string_view name;
  std::string_view nameAtDeadEnd;  ///< of the disabled graphic; empty for Index, which has none
};
[[nodiscard]] const LinkGraphics& GraphicsOf(LinkKind kind);

/// Returns the settings of the link of kind `kind`.
[[nodiscard]] const LinkSettings& LinkOf(const GalleryProject& project, LinkKind kind);

/// Returns the opening tag of a link on image or page `current` of `total`, without its `</A>`. Except for Index, empty
/// at the end of the sequence and for a total of 1. For Index, throws RuntimeFailure DivisionByZero like
/// ThumbnailPageOfImage.
[[nodiscard]] std::string BuildLinkAnchor(const RunState& run, LinkKind kind, std::int32_t current, std::int32_t total);

/// Returns the image tag of a link's graphic on image or page `current` of `total`; at the end of the sequence, that of
/// its disabled graphic. Empty for a total of 1.
[[nodiscard]] std::string BuildLinkGraphic(const RunState& run, LinkKind kind, std::int32_t current,
                                           std::int32_t total);

/// Returns the thumbnail page that shows `image`. Throws RuntimeFailure DivisionByZero if a page holds no thumbnails.
[[nodiscard]] std::int32_t ThumbnailPageOfImage(const GalleryProject& project, std::int32_t image);

}  // namespace vantorium
