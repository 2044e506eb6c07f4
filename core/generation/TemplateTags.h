#pragma once

#include "core/GalleryTargets.h"
#include "core/generation/RunState.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium::generation {

// Templates are user texts with tags of the form <VANTORIUM_IMAGE_INDEX>. Tags ignore the case of ASCII letters. Text
// that is not a tag is left unchanged.

/// Means no image, or no thumbnail page. Tags that need one are then not replaced.
inline constexpr std::int32_t kNoIndex = -1;

/// Values that contain tags can expand a small project to a text of any length. A text that would grow beyond this many
/// bytes throws std::bad_alloc, as if memory were exhausted.
inline constexpr std::size_t kLongestExpandedText = std::size_t{64} << 20U;

/// Returns `text` with its tags replaced, one tag after the other in the order of TagRows, each throughout the text: a
/// tag in an inserted value is replaced if its row comes later. Values are computed only for tags that occur. Throws
/// whatever computing a value throws, like BuildLinkAnchor.
[[nodiscard]] std::string ExpandTags(const RunState& run, std::string_view text, std::int32_t imageIndex,
                                     std::int32_t pageIndex);

/// Returns `text`, already expanded by ExpandTags, with the tags of the image's two descriptions replaced. The inserted
/// text is expanded with the same indices. Without an image the tags are not replaced.
[[nodiscard]] std::string ExpandDescriptionTags(const RunState& run, std::string text, std::int32_t imageIndex,
                                                std::int32_t pageIndex);

/// ExpandTags followed by ExpandDescriptionTags.
[[nodiscard]] std::string ExpandAllTags(const RunState& run, std::string_view text, std::int32_t imageIndex,
                                        std::int32_t pageIndex);

/// Returns the description of an image or of its thumbnail as a page shows it: header, description and footer, with
/// their tags replaced.
[[nodiscard]] std::string DescriptionText(const RunState& run, const core::DescriptionFields& fields,
                                          std::int32_t imageIndex);

}  // namespace vantorium::generation
