#include "ui/model/main/SettingsButtons.h"

namespace vantorium::ui {
namespace {

using P = core::GalleryProject;

constexpr CodeButton kCode[] = {
    {"btnGalleryInfo", "Information about this Gallery", &P::GalleryInfoText},
    {"btnGalleryHEAD", "Gallery <HEAD> Code", &P::GalleryHeadCode},
    {"btnImageWrapperHEAD", "Image Wrapper <HEAD> Code", core::kImages.codes.head},
    {"btnThumbnailsPageHEAD", "Thumbnail Page <HEAD> Code", core::kThumbnails.codes.head},
    {"btnCaptionsImagesRegular", "Image Regular Caption Code", core::kImages.captions.regularText},
    {"btnCaptionsImagesPopup", "Image Popup Caption Code", core::kImages.captions.popupText},
    {"btnCaptionsThumbnailsRegular", "Thumbnail Regular Caption Code", core::kThumbnails.captions.regularText},
    {"btnCaptionsThumbnailsPopup", "Thumbnail Popup Caption Code", core::kThumbnails.captions.popupText},
};

constexpr HeaderFooterButton kHeaderFooter[] = {
    {"btnImageWrapperBODY", "Image Wrapper <BODY> Header and Footer", core::kImages.codes.bodyHeader,
     core::kImages.codes.bodyFooter},
    {"btnImageWrapperImageHeaderAndFooter", "Image Wrapper Image HTML Header and Footer",
     core::kImages.codes.pictureHeader, core::kImages.codes.pictureFooter},
    {"btnThumbnailsPageHeaderAndFooter", "Thumbnail Page <BODY> Header and Footer", core::kThumbnails.codes.bodyHeader,
     core::kThumbnails.codes.bodyFooter},
    {"btnThumbnailsImageHeaderAndFooter", "Thumbnail Page Thumb HTML Header and Footer",
     core::kThumbnails.codes.pictureHeader, core::kThumbnails.codes.pictureFooter},
};

constexpr BackdropButton kBackdrops[] = {
    {"btnImageWrapperBackdropBrowse", "Select Backdrop Image for Image (Wrapper) Page", core::kImages.backdrop.source},
    {"btnThumbnailsPageBackDropBrowse", "Select Backdrop Image for Thumbnail Page", core::kThumbnails.backdrop.source},
    {"btnThumbnailsTableBackdropBrowse", "Select Thumbnail Table Backdrop Image", core::kTableBackdrop.source},
};

constexpr ColorsButton kColors[] = {
    {"btnImageWrapperColors", "Select Image Wrapper Colors", core::kImages.colors, core::kThumbnails.colors},
    {"btnThumbnailsPageColors", "Select Thumbnail Page Colors", core::kThumbnails.colors, core::kImages.colors},
};

constexpr LinkButton kLinks[] = {
    {"btnPageLinksImageFirstLink", "\"First Image\" Link", "Link Graphic &on first Image Wrapper",
     core::PageLinkOf(core::LinkKind::FirstImage).settings},
    {"btnPageLinksImageLastLink", "\"Last Image\" Link", "Link Graphic &on last Image Wrapper",
     core::PageLinkOf(core::LinkKind::LastImage).settings},
    {"btnPageLinksImagePreviousLink", "\"Previous Image\" Link", "Link Graphic &on first Image Wrapper",
     core::PageLinkOf(core::LinkKind::PreviousImage).settings},
    {"btnPageLinksImageNextLink", "\"Next Image\" Link", "Link Graphic &on last Image Wrapper",
     core::PageLinkOf(core::LinkKind::NextImage).settings},
    {"btnPageLinksImageIndexLink", "\"Index Page\" Link", "", core::PageLinkOf(core::LinkKind::Index).settings},
    {"btnPageLinksThumbnailFirstLink", "\"First Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     core::PageLinkOf(core::LinkKind::FirstThumbnailPage).settings},
    {"btnPageLinksThumbnailLastLink", "\"Last Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     core::PageLinkOf(core::LinkKind::LastThumbnailPage).settings},
    {"btnPageLinksThumbnailPreviousLink", "\"Previous Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     core::PageLinkOf(core::LinkKind::PreviousThumbnailPage).settings},
    {"btnPageLinksThumbnailNextLink", "\"Next Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     core::PageLinkOf(core::LinkKind::NextThumbnailPage).settings},
};

constexpr FiltersButton kFilters[] = {
    {"btnImagesFilters", "Filters for Images", core::kImages.filters},
    {"btnThumbnailsImageFilters", "Filters for Thumbnails", core::kThumbnails.filters},
};

constexpr WatermarkButton kWatermarks[] = {
    {"btnImagesWatermark", "Image Watermarks", core::kImages.watermark, core::kImages.filters},
    {"btnThumbnailsWatermark", "Thumbnail Watermarks", core::kThumbnails.watermark, core::kThumbnails.filters},
};

}  // namespace

std::span<const CodeButton> CodeButtons() {
  return kCode;
}

std::span<const HeaderFooterButton> HeaderFooterButtons() {
  return kHeaderFooter;
}

std::span<const BackdropButton> BackdropButtons() {
  return kBackdrops;
}

std::span<const ColorsButton> ColorsButtons() {
  return kColors;
}

std::span<const LinkButton> LinkButtons() {
  return kLinks;
}

std::span<const FiltersButton> FiltersButtons() {
  return kFilters;
}

std::span<const WatermarkButton> WatermarkButtons() {
  return kWatermarks;
}

}  // namespace vantorium::ui
