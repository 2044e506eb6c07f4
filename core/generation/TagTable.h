#pragma once

#include "core/GalleryTargets.h"
#include "core/generation/RunState.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantorium::generation {

/// The context in which a template is expanded. `image` and `page` count from 1, or are kNoIndex.
struct TagScope {
  const RunState& run;
  std::int32_t image;
  std::int32_t page;
};

/// The index that must be given for a tag to be replaced.
enum class TagNeeds { Nothing, Image, Page };

struct TagRow {
  TagNeeds needs;
  std::string_view tag;
  std::string (*value)(const TagScope& scope);
};

/// All tags except those of descriptions, in the order in which they are replaced.
[[nodiscard]] std::span<const TagRow> TagRows();

inline constexpr std::string_view kNextImageTextTag = "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>";
inline constexpr std::string_view kNextImageGraphicTag = "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>";

/// The tags of one description, and the fields that hold their values.
struct DescriptionTags {
  std::string_view start;  ///< the beginning of both tags
  std::string_view tag;
  std::string_view fullTag;  ///< with header and footer
  const core::DescriptionFields& fields;
};

/// The tags of the image description, then those of the thumbnail description.
[[nodiscard]] std::span<const DescriptionTags> DescriptionTagRows();

/// The groups in which the editors offer the tags.
enum class TagGroup { Gallery, Image, Thumbnail, PageLink };

/// A tag with the name by which it is offered. Both are empty for a separator.
struct OfferedTag {
  std::string_view caption;
  std::string_view tag;
};

/// The tags of a group, in the order in which they are offered.
[[nodiscard]] std::span<const OfferedTag> OfferedTags(TagGroup group);

}  // namespace vantorium::generation
