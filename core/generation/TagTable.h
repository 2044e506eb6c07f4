#pragma once

#include "core/generation/RunState.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantorium {

/// Where a template is expanded: an image and a thumbnail page from 1, or kNoIndex.
struct TagScope {
  const RunState& run;
  std::int32_t image;
  std::int32_t page;
};

/// The index that a tag needs to be replaced.
enum class TagNeeds { Nothing, Image, Page };

struct TagRow {
  TagNeeds needs;
  std::string_view tag;
  std::string (*value)(const TagScope& scope);
};

/// All tags but those of descriptions, in the order in which they are replaced.
[[nodiscard]] std::span<const TagRow> TagRows();

inline constexpr std::string_view kNextImageTextTag = "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>";
inline constexpr std::string_view kNextImageGraphicTag = "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>";

/// The tags of one description, and where a project and a row of the list keep what they stand for.
struct DescriptionTags {
  std::string_view start;  ///< how both tags begin
  std::string_view tag;
  std::string_view fullTag;  ///< with header and footer
  std::string GalleryProject::*header;
  std::string ImageEntry::*description;
  std::string GalleryProject::*footer;
};

/// The description of the image, then that of the thumbnail.
[[nodiscard]] std::span<const DescriptionTags> DescriptionTagRows();

}  // namespace vantorium
