#include "ui/model/main/SettingsButtons.h"

namespace vantorium {
namespace {

using P = GalleryProject;

constexpr CodeButton kCode[] = {
    {"btnGalleryInfo", "Information about this Gallery", &P::GalleryInfoText},
    {"btnGalleryHEAD", "Gallery <HEAD> Code", &P::GalleryHeadCode},
    {"btnImageWrapperHEAD", "Image Wrapper <HEAD> Code", kImages.codes.head},
    {"btnThumbnailsPageHEAD", "Thumbnail Page <HEAD> Code", kThumbnails.codes.head},
    {"btnCaptionsImagesRegular", "Image Regular Caption Code", kImages.captions.regularText},
    {"btnCaptionsImagesPopup", "Image Popup Caption Code", kImages.captions.popupText},
    {"btnCaptionsThumbnailsRegular", "Thumbnail Regular Caption Code", kThumbnails.captions.regularText},
    {"btnCaptionsThumbnailsPopup", "Thumbnail Popup Caption Code", kThumbnails.captions.popupText},
};

constexpr HeaderFooterButton kHeaderFooter[] = {
    {"btnImageWrapperBODY", "Image Wrapper <BODY> Header and Footer", kImages.codes.bodyHeader,
     kImages.codes.bodyFooter},
    {"btnImageWrapperImageHeaderAndFooter", "Image Wrapper Image HTML Header and Footer", kImages.codes.pictureHeader,
     kImages.codes.pictureFooter},
    {"btnThumbnailsPageHeaderAndFooter", "Thumbnail Page <BODY> Header and Footer", kThumbnails.codes.bodyHeader,
     kThumbnails.codes.bodyFooter},
    {"btnThumbnailsImageHeaderAndFooter", "Thumbnail Page Thumb HTML Header and Footer",
     kThumbnails.codes.pictureHeader, kThumbnails.codes.pictureFooter},
};

constexpr BackdropButton kBackdrops[] = {
    {"btnImageWrapperBackdropBrowse", "Select Backdrop Image for Image (Wrapper) Page", kImages.backdrop.source},
    {"btnThumbnailsPageBackDropBrowse", "Select Backdrop Image for Thumbnail Page", kThumbnails.backdrop.source},
    {"btnThumbnailsTableBackdropBrowse", "Select Thumbnail Table Backdrop Image", kTableBackdrop.source},
};

constexpr ColorsButton kColors[] = {
    {"btnImageWrapperColors", "Select Image Wrapper Colors", kImages.colors, kThumbnails.colors},
    {"btnThumbnailsPageColors", "Select Thumbnail Page Colors", kThumbnails.colors, kImages.colors},
};

constexpr LinkButton kLinks[] = {
    {"btnPageLinksImageFirstLink", "\"First Image\" Link", "Link Graphic &on first Image Wrapper",
     PageLinkOf(LinkKind::FirstImage).settings},
    {"btnPageLinksImageLastLink", "\"Last Image\" Link", "Link Graphic &on last Image Wrapper",
     PageLinkOf(LinkKind::LastImage).settings},
    {"btnPageLinksImagePreviousLink", "\"Previous Image\" Link", "Link Graphic &on first Image Wrapper",
     PageLinkOf(LinkKind::PreviousImage).settings},
    {"btnPageLinksImageNextLink", "\"Next Image\" Link", "Link Graphic &on last Image Wrapper",
     PageLinkOf(LinkKind::NextImage).settings},
    {"btnPageLinksImageIndexLink", "\"Index Page\" Link", "", PageLinkOf(LinkKind::Index).settings},
    {"btnPageLinksThumbnailFirstLink", "\"First Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     PageLinkOf(LinkKind::FirstThumbnailPage).settings},
    {"btnPageLinksThumbnailLastLink", "\"Last Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     PageLinkOf(LinkKind::LastThumbnailPage).settings},
    {"btnPageLinksThumbnailPreviousLink", "\"Previous Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     PageLinkOf(LinkKind::PreviousThumbnailPage).settings},
    {"btnPageLinksThumbnailNextLink", "\"Next Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     PageLinkOf(LinkKind::NextThumbnailPage).settings},
};

constexpr FiltersButton kFilters[] = {
    {"btnImagesFilters", "Filters for Images", kImages.filters},
    {"btnThumbnailsImageFilters", "Filters for Thumbnails", kThumbnails.filters},
};

constexpr WatermarkButton kWatermarks[] = {
    {"btnImagesWatermark", "Image Watermarks", kImages.watermark, kImages.filters},
    {"btnThumbnailsWatermark", "Thumbnail Watermarks", kThumbnails.watermark, kThumbnails.filters},
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

}  // namespace vantorium
