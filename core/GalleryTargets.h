#pragma once

#include "core/GalleryProject.h"
#include "core/ImageEntry.h"
#include "core/PageColors.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantorium::core {

// A gallery shows its photographs twice: as images, each on its wrapper page, and as thumbnails on thumbnail pages.
// Most settings exist once for each of these two targets. Here they are paired; code that treats both targets alike
// takes kImages or kThumbnails.

/// A backdrop: its setting, and the name of its copy in the images folder, to which the extension is added.
struct Backdrop {
  std::string GalleryProject::*source;
  std::string_view name;
};

/// The code of a page, and the code around each of its pictures.
struct CodeFields {
  std::string GalleryProject::*head;
  std::string GalleryProject::*bodyHeader;
  std::string GalleryProject::*bodyFooter;
  std::string GalleryProject::*pictureHeader;
  std::string GalleryProject::*pictureFooter;
};

struct SizeFields {
  Flag GalleryProject::*keepAspectRatio;
  Flag GalleryProject::*setWidth;
  Digits GalleryProject::*width;
  Digits GalleryProject::*height;
};

struct CaptionFields {
  Flag GalleryProject::*regular;
  std::string GalleryProject::*regularText;
  Choice GalleryProject::*placement;
  Choice GalleryProject::*alignment;
  Flag GalleryProject::*popup;
  std::string GalleryProject::*popupText;
};

/// The description of a picture, and what all descriptions share.
struct DescriptionFields {
  std::string ImageEntry::*text;
  std::string GalleryProject::*header;
  std::string GalleryProject::*footer;
  Choice GalleryProject::*placement;
  Choice GalleryProject::*alignment;
};

/// Where a page link leads, in the sequence of the images or of the thumbnail pages.
enum class LinkGoal { First, Previous, Next, Last, Index };

/// A page link: its settings, and the names of the copies of its graphics in the images folder, to which the extension
/// of the graphic is added.
struct PageLink {
  LinkGoal goal;
  LinkSettings GalleryProject::*settings;
  std::string_view graphic;
  std::string_view disabledGraphic;  ///< for the page where the link leads nowhere; empty for Index, which has none
};

/// Identifies a page link; an index into kPageLinks.
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

inline constexpr PageLink kPageLinks[] = {
    {LinkGoal::First, &GalleryProject::ImageFirstLink, "_imagelink_first", "_imagelink_first_first"},
    {LinkGoal::Previous, &GalleryProject::ImagePreviousLink, "_imagelink_previous", "_imagelink_previous_first"},
    {LinkGoal::Next, &GalleryProject::ImageNextLink, "_imagelink_next", "_imagelink_next_last"},
    {LinkGoal::Last, &GalleryProject::ImageLastLink, "_imagelink_last", "_imagelink_last_last"},
    {LinkGoal::Index, &GalleryProject::ImageIndexLink, "_imagelink_index", ""},
    {LinkGoal::First, &GalleryProject::ThumbnailFirstLink, "_thumblink_first", "_thumblink_first_first"},
    {LinkGoal::Previous, &GalleryProject::ThumbnailPreviousLink, "_thumblink_previous", "_thumblink_previous_first"},
    {LinkGoal::Next, &GalleryProject::ThumbnailNextLink, "_thumblink_next", "_thumblink_next_last"},
    {LinkGoal::Last, &GalleryProject::ThumbnailLastLink, "_thumblink_last", "_thumblink_last_last"},
};

[[nodiscard]] constexpr const PageLink& PageLinkOf(LinkKind kind) {
  return kPageLinks[static_cast<std::size_t>(kind)];
}

/// Whether a link leads from one image to another or to its thumbnail, and so stands on wrapper pages.
[[nodiscard]] constexpr bool IsImageLink(LinkKind kind) {
  return kind <= LinkKind::Index;
}

/// The settings of one target.
struct TargetFields {
  std::string GalleryProject::*folder;     ///< of the pictures' files
  std::string GalleryProject::*extension;  ///< of the pages' files
  PageColorFields colors;
  Backdrop backdrop;
  CodeFields codes;
  SizeFields size;
  image::ImageFilterSettings GalleryProject::*filters;
  image::WatermarkSettings GalleryProject::*watermark;
  CaptionFields captions;
  DescriptionFields description;
  Choice GalleryProject::*linkPlacement;
  std::span<const PageLink> links;  ///< in the order First, Previous, Next, Last, Index
};

inline constexpr TargetFields kImages = {
    .folder = &GalleryProject::textImageSettingsSubFolder,
    .extension = &GalleryProject::comboImageWrapperSettingsFileExtension,
    .colors = {.use = &GalleryProject::checkImageWrapperSetColors,
               .background = &GalleryProject::ImagePageBgColor,
               .text = &GalleryProject::ImagePageTextColor,
               .link = &GalleryProject::ImagePageLinkColor,
               .visitedLink = &GalleryProject::ImagePageVLinkColor,
               .activeLink = &GalleryProject::ImagePageALinkColor},
    .backdrop = {&GalleryProject::textImageWrapperBackdrop, "_backdrop_imagepage"},
    .codes = {.head = &GalleryProject::ImagePageHeadCode,
              .bodyHeader = &GalleryProject::ImagePageBodyHeader,
              .bodyFooter = &GalleryProject::ImagePageBodyFooter,
              .pictureHeader = &GalleryProject::ImageHeader,
              .pictureFooter = &GalleryProject::ImageFooter},
    .size = {.keepAspectRatio = &GalleryProject::checkImageWrapperImageKeepAspectRatio,
             .setWidth = &GalleryProject::checkImageWrapperImageSetWidth,
             .width = &GalleryProject::textImageWrapperImageWidth,
             .height = &GalleryProject::textImageWrapperImageHeight},
    .filters = &GalleryProject::ImageFilters,
    .watermark = &GalleryProject::ImageWatermark,
    .captions = {.regular = &GalleryProject::checkCaptionsImagesRegular,
                 .regularText = &GalleryProject::ImageRegularCaption,
                 .placement = &GalleryProject::comboCaptionsImagesRegularPlacement,
                 .alignment = &GalleryProject::comboCaptionsImagesRegularAlignment,
                 .popup = &GalleryProject::checkCaptionsImagesPopup,
                 .popupText = &GalleryProject::ImagePopupCaption},
    .description = {.text = &ImageEntry::ImageDescription,
                    .header = &GalleryProject::textHeader,
                    .footer = &GalleryProject::textFooter,
                    .placement = &GalleryProject::comboImageDescriptionPlacement,
                    .alignment = &GalleryProject::comboImageDescriptionAlignment},
    .linkPlacement = &GalleryProject::comboPageLinksImageLinkPlacement,
    .links = std::span(kPageLinks).first<5>(),
};

inline constexpr TargetFields kThumbnails = {
    .folder = &GalleryProject::textThumbnailImageSettingsSubFolder,
    .extension = &GalleryProject::comboThumbnailPageSettingsFileExtension,
    .colors = {.use = &GalleryProject::checkThumbnailsPageSetColors,
               .background = &GalleryProject::ThumbnailPageBgColor,
               .text = &GalleryProject::ThumbnailPageTextColor,
               .link = &GalleryProject::ThumbnailPageLinkColor,
               .visitedLink = &GalleryProject::ThumbnailPageVLinkColor,
               .activeLink = &GalleryProject::ThumbnailPageALinkColor},
    .backdrop = {&GalleryProject::textThumbnailsPageBackdrop, "_backdrop_thumbpage"},
    .codes = {.head = &GalleryProject::ThumbnailPageHeadCode,
              .bodyHeader = &GalleryProject::ThumbnailPageBodyHeader,
              .bodyFooter = &GalleryProject::ThumbnailPageBodyFooter,
              .pictureHeader = &GalleryProject::ThumbnailHeader,
              .pictureFooter = &GalleryProject::ThumbnailFooter},
    .size = {.keepAspectRatio = &GalleryProject::checkThumbnailsImageKeepAspectRatio,
             .setWidth = &GalleryProject::checkThumbnailsImageSetWidth,
             .width = &GalleryProject::textThumbnailsImageWidth,
             .height = &GalleryProject::textThumbnailsImageHeight},
    .filters = &GalleryProject::ThumbnailFilters,
    .watermark = &GalleryProject::ThumbnailWatermark,
    .captions = {.regular = &GalleryProject::checkCaptionsThumbnailsRegular,
                 .regularText = &GalleryProject::ThumbnailRegularCaption,
                 .placement = &GalleryProject::comboCaptionsThumbnailsRegularPlacement,
                 .alignment = &GalleryProject::comboCaptionsThumbnailsRegularAlignment,
                 .popup = &GalleryProject::checkCaptionsThumbnailsPopup,
                 .popupText = &GalleryProject::ThumbnailPopupCaption},
    .description = {.text = &ImageEntry::ThumbnailDescription,
                    .header = &GalleryProject::textThumbHeader,
                    .footer = &GalleryProject::textThumbFooter,
                    .placement = &GalleryProject::comboThumbnailDescriptionPlacement,
                    .alignment = &GalleryProject::comboThumbnailDescriptionAlignment},
    .linkPlacement = &GalleryProject::comboPageLinksThumbnailLinkPlacement,
    .links = std::span(kPageLinks).last<4>(),
};

/// The backdrop of the table on a thumbnail page, which only thumbnails have.
inline constexpr Backdrop kTableBackdrop = {&GalleryProject::textThumbnailsTableBackdrop, "_backdrop_thumbtable"};

/// Returns the target's link to `goal`, or null: thumbnail pages have no link to the index.
[[nodiscard]] constexpr const PageLink* LinkTo(const TargetFields& target, LinkGoal goal) {
  for (const PageLink& link : target.links) {
    if (link.goal == goal) return &link;
  }
  return nullptr;
}

}  // namespace vantorium::core
