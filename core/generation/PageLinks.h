#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium {

/// What a link of a page leads to.
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

/// The settings of the link of that kind.
[[nodiscard]] const LinkSettings& LinkOf(const GalleryProject& project, LinkKind kind);

/// The opening tag of a link on image or page `current` of `total`; its `</A>` is not there. Empty at the end of the
/// sequence and when there is nothing to go to. Throws RuntimeFailure DivisionByZero for Index as ThumbnailPageOfImage.
[[nodiscard]] std::string BuildLinkAnchor(const RunState& run, LinkKind kind, std::int32_t current, std::int32_t total);

/// The image tag of a link's graphic on image or page `current` of `total`, at the end of the sequence that of its
/// disabled graphic. Empty for a total of 1.
[[nodiscard]] std::string BuildLinkGraphic(const RunState& run, LinkKind kind, std::int32_t current,
                                           std::int32_t total);

/// The thumbnail page on which an image stands. Throws RuntimeFailure DivisionByZero when a page holds no thumbnail.
[[nodiscard]] std::int32_t ThumbnailPageOfImage(const GalleryProject& project, std::int32_t image);

}  // namespace vantorium
