#include "ui/model/main/SettingsButtons.h"

namespace vantorium {
namespace {

using P = GalleryProject;

constexpr CodeButton kCode[] = {
    {"btnGalleryInfo", "Information about this Gallery", &P::GalleryInfoText},
    {"btnGalleryHEAD", "Gallery <HEAD> Code", &P::GalleryHeadCode},
    {"btnImageWrapperHEAD", "Image Wrapper <HEAD> Code", &P::ImagePageHeadCode},
    {"btnThumbnailsPageHEAD", "Thumbnail Page <HEAD> Code", &P::ThumbnailPageHeadCode},
    {"btnCaptionsImagesRegular", "Image Regular Caption Code", &P::ImageRegularCaption},
    {"btnCaptionsImagesPopup", "Image Popup Caption Code", &P::ImagePopupCaption},
    {"btnCaptionsThumbnailsRegular", "Thumbnail Regular Caption Code", &P::ThumbnailRegularCaption},
    {"btnCaptionsThumbnailsPopup", "Thumbnail Popup Caption Code", &P::ThumbnailPopupCaption},
};

constexpr HeaderFooterButton kHeaderFooter[] = {
    {"btnImageWrapperBODY", "Image Wrapper <BODY> Header and Footer", &P::ImagePageBodyHeader, &P::ImagePageBodyFooter},
    {"btnImageWrapperImageHeaderAndFooter", "Image Wrapper Image HTML Header and Footer", &P::ImageHeader,
     &P::ImageFooter},
    {"btnThumbnailsPageHeaderAndFooter", "Thumbnail Page <BODY> Header and Footer", &P::ThumbnailPageBodyHeader,
     &P::ThumbnailPageBodyFooter},
    {"btnThumbnailsImageHeaderAndFooter", "Thumbnail Page Thumb HTML Header and Footer", &P::ThumbnailHeader,
     &P::ThumbnailFooter},
};

constexpr BackdropButton kBackdrops[] = {
    {"btnImageWrapperBackdropBrowse", "Select Backdrop Image for Image (Wrapper) Page", &P::textImageWrapperBackdrop},
    {"btnThumbnailsPageBackDropBrowse", "Select Backdrop Image for Thumbnail Page", &P::textThumbnailsPageBackdrop},
    {"btnThumbnailsTableBackdropBrowse", "Select Thumbnail Table Backdrop Image", &P::textThumbnailsTableBackdrop},
};

constexpr ColorsButton kColors[] = {
    {"btnImageWrapperColors", "Select Image Wrapper Colors", kImagePageColors, kThumbnailPageColors},
    {"btnThumbnailsPageColors", "Select Thumbnail Page Colors", kThumbnailPageColors, kImagePageColors},
};

constexpr LinkButton kLinks[] = {
    {"btnPageLinksImageFirstLink", "\"First Image\" Link", "Link Graphic &on first Image Wrapper", &P::ImageFirstLink},
    {"btnPageLinksImageLastLink", "\"Last Image\" Link", "Link Graphic &on last Image Wrapper", &P::ImageLastLink},
    {"btnPageLinksImagePreviousLink", "\"Previous Image\" Link", "Link Graphic &on first Image Wrapper",
     &P::ImagePreviousLink},
    {"btnPageLinksImageNextLink", "\"Next Image\" Link", "Link Graphic &on last Image Wrapper", &P::ImageNextLink},
    {"btnPageLinksImageIndexLink", "\"Index Page\" Link", "", &P::ImageIndexLink},
    {"btnPageLinksThumbnailFirstLink", "\"First Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     &P::ThumbnailFirstLink},
    {"btnPageLinksThumbnailLastLink", "\"Last Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     &P::ThumbnailLastLink},
    {"btnPageLinksThumbnailPreviousLink", "\"Previous Thumbnail Page\" Link", "Link Graphic &on first Thumbnail Page",
     &P::ThumbnailPreviousLink},
    {"btnPageLinksThumbnailNextLink", "\"Next Thumbnail Page\" Link", "Link Graphic &on last Thumbnail Page",
     &P::ThumbnailNextLink},
};

constexpr FiltersButton kFilters[] = {
    {"btnImagesFilters", "Filters for Images", &P::ImageFilters},
    {"btnThumbnailsImageFilters", "Filters for Thumbnails", &P::ThumbnailFilters},
};

constexpr WatermarkButton kWatermarks[] = {
    {"btnImagesWatermark", "Image Watermarks", &P::ImageWatermark, &P::ImageFilters},
    {"btnThumbnailsWatermark", "Thumbnail Watermarks", &P::ThumbnailWatermark, &P::ThumbnailFilters},
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
