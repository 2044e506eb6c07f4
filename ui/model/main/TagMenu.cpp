#include "ui/model/main/TagMenu.h"

#include <array>

namespace vantorium::ui {
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
      {"mnuEditTagsGallery", "Gallery Tags", generation::OfferedTags(generation::TagGroup::Gallery)},
      {"mnuEditTagsImage", "Image Tags", generation::OfferedTags(generation::TagGroup::Image)},
      {"mnuEditTagsThumbnail", "Thumbnail Tags", generation::OfferedTags(generation::TagGroup::Thumbnail)},
      {"mnuEditTagsLinks", "Page Link Tags", generation::OfferedTags(generation::TagGroup::PageLink)},
  }};
  return kMenus;
}

std::span<const TagMenuEntry> PopupTextTags() {
  return kPopupTextTags;
}

}  // namespace vantorium::ui
