#include "ui/model/main/TagMenu.h"

#include <array>

namespace vantorium {
namespace {

constexpr TagMenuEntry kPopupTextTags[] = {
    {"Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
    {"Gallery Creation Date (short)", "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
    {"Image Count", "<VANTORIUM_IMAGE_COUNT>"},
    {"Image File Date", "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
    {"Image File Name", "<VANTORIUM_IMAGE_FILENAME>"},
};

}  // namespace

std::span<const TagMenu> TagMenus() {
  static const std::array<TagMenu, 4> kMenus = {{
      {"mnuEditTagsGallery", "Gallery Tags", OfferedTags(TagGroup::Gallery)},
      {"mnuEditTagsImage", "Image Tags", OfferedTags(TagGroup::Image)},
      {"mnuEditTagsThumbnail", "Thumbnail Tags", OfferedTags(TagGroup::Thumbnail)},
      {"mnuEditTagsLinks", "Page Link Tags", OfferedTags(TagGroup::PageLink)},
  }};
  return kMenus;
}

std::span<const TagMenuEntry> PopupTextTags() {
  return kPopupTextTags;
}

}  // namespace vantorium
