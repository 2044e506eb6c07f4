#pragma once

#include "core/generation/RunState.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium {

// Templates are texts of the user with tags of the form <VANTORIUM_IMAGE_INDEX>. Upper and lower case of ASCII letters
// are the same in a tag; what is no tag stays as it stands.

/// Stands for no image, or no thumbnail page. Tags that need one then stay.
inline constexpr std::int32_t kNoIndex = -1;

/// Values with tags in them can make a text of any length out of a small project. One that would grow beyond so many
/// bytes is treated as one that there is no memory for: std::bad_alloc.
inline constexpr std::size_t kLongestExpandedText = std::size_t{64} << 20U;

/// `text` with its tags replaced, one tag after the other in the order of TagRows, each throughout the text: a tag in a
/// value put in is replaced when its row comes later. Values are made only for tags that occur. Throws what making the
/// value throws, as BuildLinkAnchor.
[[nodiscard]] std::string ExpandTags(const RunState& run, std::string_view text, std::int32_t imageIndex,
                                     std::int32_t pageIndex);

/// `text`, which ExpandTags has passed over, with the tags of the image's two descriptions replaced; what is put in is
/// expanded with the same indices. Without an image the tags stay.
[[nodiscard]] std::string ExpandDescriptionTags(const RunState& run, std::string text, std::int32_t imageIndex,
                                                std::int32_t pageIndex);

/// Both steps.
[[nodiscard]] std::string ExpandAllTags(const RunState& run, std::string_view text, std::int32_t imageIndex,
                                        std::int32_t pageIndex);

}  // namespace vantorium
