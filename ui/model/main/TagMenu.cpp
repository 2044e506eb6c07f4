#include "ui/model/main/TagMenu.h"

namespace vantorium {
namespace {

constexpr TagMenuEntry kGalleryTags[] = {
    {"Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
    {"Gallery Creation Date (short)", "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
    {"Gallery Creation Time (long)", "<VANTORIUM_GALLERY_CREATIONTIME_LONG>"},
    {"Gallery Creation Time (short)", "<VANTORIUM_GALLERY_CREATIONTIME_SHORT>"},
    {"Gallery Title", "<VANTORIUM_GALLERY_TITLE>"},
};

constexpr TagMenuEntry kImageTags[] = {
    {"Image Count", "<VANTORIUM_IMAGE_COUNT>"},
    {"Image File Date (long)", "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
    {"Image File Date (short)", "<VANTORIUM_IMAGE_FILEDATE_SHORT>"},
    {"Image File Time (long)", "<VANTORIUM_IMAGE_FILETIME_LONG>"},
    {"Image File Time (short)", "<VANTORIUM_IMAGE_FILETIME_SHORT>"},
    {"Image File Name", "<VANTORIUM_IMAGE_FILENAME>"},
    {"Image File Size", "<VANTORIUM_IMAGE_FILESIZE>"},
    {"Image Title", "<VANTORIUM_IMAGE_TITLE>"},
    {"Image Index", "<VANTORIUM_IMAGE_INDEX>"},
    {"Image Width", "<VANTORIUM_IMAGE_WIDTH>"},
    {"Image Height", "<VANTORIUM_IMAGE_HEIGHT>"},
    {"Image Width Maximum", "<VANTORIUM_IMAGE_WIDTH_MAX>"},
    {"Image Height Maximum", "<VANTORIUM_IMAGE_HEIGHT_MAX>"},
    {"Image Description", "<VANTORIUM_IMAGE_DESCRIPTION>"},
    {"Image Description (full)", "<VANTORIUM_IMAGE_DESCRIPTION_FULL>"},
};

constexpr TagMenuEntry kThumbnailTags[] = {
    {"Thumbnail Page Count", "<VANTORIUM_THUMBPAGE_COUNT>"},
    {"Thumbnail Page Index", "<VANTORIUM_THUMBPAGE_INDEX>"},
    {"Thumbnail Width", "<VANTORIUM_THUMB_WIDTH>"},
    {"Thumbnail Height", "<VANTORIUM_THUMB_HEIGHT>"},
    {"Thumbnail Width Maximum", "<VANTORIUM_THUMB_WIDTH_MAX>"},
    {"Thumbnail Height Maximum", "<VANTORIUM_THUMB_HEIGHT_MAX>"},
    {"Thumbnail Description", "<VANTORIUM_THUMB_DESCRIPTION>"},
    {"Thumbnail Description (full)", "<VANTORIUM_THUMB_DESCRIPTION_FULL>"},
};

constexpr TagMenuEntry kLinksTags[] = {
    {"First Image", "<VANTORIUM_PAGELINK_FIRSTIMAGE_TEXT>"},
    {"Previous Image", "<VANTORIUM_PAGELINK_PREVIMAGE_TEXT>"},
    {"Next Image", "<VANTORIUM_PAGELINK_NEXTIMAGE_TEXT>"},
    {"Last Image", "<VANTORIUM_PAGELINK_LASTIMAGE_TEXT>"},
    {"Index Page", "<VANTORIUM_PAGELINK_INDEX_TEXT>"},
    {"First Image (Graphic)", "<VANTORIUM_PAGELINK_FIRSTIMAGE_GRAPHIC>"},
    {"Previous Image (Graphic)", "<VANTORIUM_PAGELINK_PREVIMAGE_GRAPHIC>"},
    {"Next Image (Graphic)", "<VANTORIUM_PAGELINK_NEXTIMAGE_GRAPHIC>"},
    {"Last Image (Graphic)", "<VANTORIUM_PAGELINK_LASTIMAGE_GRAPHIC>"},
    {"Index Page (Graphic)", "<VANTORIUM_PAGELINK_INDEX_GRAPHIC>"},
    {"", ""},
    {"First Thumbnail Page", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_TEXT>"},
    {"Previous Thumbnail Page", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_TEXT>"},
    {"Next Thumbnail Page", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_TEXT>"},
    {"Last Thumbnail Page", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_TEXT>"},
    {"First Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_FIRSTTHUMBPAGE_GRAPHIC>"},
    {"Previous Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_PREVTHUMBPAGE_GRAPHIC>"},
    {"Next Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_NEXTTHUMBPAGE_GRAPHIC>"},
    {"Last Thumbnail Page (Graphic)", "<VANTORIUM_PAGELINK_LASTTHUMBPAGE_GRAPHIC>"},
    {"", ""},
    {"Direct Thumbnail Page Links", "<VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>"},
};

constexpr TagMenu kMenus[] = {
    {"mnuEditTagsGallery", "Gallery Tags", kGalleryTags},
    {"mnuEditTagsImage", "Image Tags", kImageTags},
    {"mnuEditTagsThumbnail", "Thumbnail Tags", kThumbnailTags},
    {"mnuEditTagsLinks", "Page Link Tags", kLinksTags},
};

constexpr TagMenuEntry kPopupTextTags[] = {
    {"Gallery Creation Date (long)", "<VANTORIUM_GALLERY_CREATIONDATE_LONG>"},
    {"Gallery Creation Date (short)", "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>"},
    {"Image Count", "<VANTORIUM_IMAGE_COUNT>"},
    {"Image File Date", "<VANTORIUM_IMAGE_FILEDATE_LONG>"},
    {"Image File Name", "<VANTORIUM_IMAGE_FILENAME>"},
};

}  // namespace

std::span<const TagMenu> TagMenus() {
  return kMenus;
}

std::span<const TagMenuEntry> PopupTextTags() {
  return kPopupTextTags;
}

}  // namespace vantorium
