#include "ui/model/main/ControlRules.h"

namespace vantorium {
namespace {

using P = const GalleryProject&;

constexpr auto kVisible = ControlProperty::Visible;
constexpr auto kEnabled = ControlProperty::Enabled;

bool SingleFrame(P p) {
  return p.comboGalleryLayoutType == 0;
}
bool SeveralFrames(P p) {
  return !SingleFrame(p);
}
bool SlideShow(P p) {
  return p.checkGallerySlideShow == 1;
}
bool BeginsWithPage(P p) {
  return p.comboGallerySlideShowBeginWith == 0;
}
bool GoesToNextImage(P p) {
  return p.comboGallerySlideShowActionAfterImage == 0;
}
bool Wrappers(P p) {
  return p.checkImageWrapperUse == 1;
}

// Whether the width or the height of a picture is given; both are unless the aspect ratio is kept.
bool ImageRatioKept(P p) {
  return p.checkImageWrapperImageKeepAspectRatio == 1;
}
bool ImageWidthGiven(P p) {
  return !ImageRatioKept(p) || p.checkImageWrapperImageSetWidth == 1;
}
bool ImageHeightGiven(P p) {
  return !ImageRatioKept(p) || p.checkImageWrapperImageSetWidth == 0;
}
bool ThumbnailRatioKept(P p) {
  return p.checkThumbnailsImageKeepAspectRatio == 1;
}
bool ThumbnailWidthGiven(P p) {
  return !ThumbnailRatioKept(p) || p.checkThumbnailsImageSetWidth == 1;
}
bool ThumbnailHeightGiven(P p) {
  return !ThumbnailRatioKept(p) || p.checkThumbnailsImageSetWidth == 0;
}

template <Flag GalleryProject::*flag>
bool IsSet(P p) {
  return p.*flag == 1;
}

constexpr ControlRule kRules[] = {
    // Gallery
    {"frmFrameLayoutSingleFrame", kVisible, SingleFrame},
    {"frmFrameLayoutMultipleFrames", kVisible, SeveralFrames},
    {"frmFrameLayoutSlideShow", kVisible, SlideShow},
    {"checkGallerySlideShowAutoStart", kVisible, BeginsWithPage},
    {"textGallerySlideShowAutoStartDelay", kVisible, BeginsWithPage},
    {"udGallerySlideShowAutoStartDelay", kVisible, BeginsWithPage},
    {"lblSeconds", kVisible, BeginsWithPage},
    {"comboGallerySlideShowStartOverWith", kVisible, GoesToNextImage},
    {"lblFrameLayoutSlideShowStartOverWith", kVisible, GoesToNextImage},
    // Image wrappers
    {"frmImageWrapperCodeSettings", kVisible, Wrappers},
    {"frmImageWrapperImageSettings", kVisible, Wrappers},
    {"btnImageWrapperColors", kEnabled, IsSet<&GalleryProject::checkImageWrapperSetColors>},
    {"frmImageWrapperImageSettingsSub", kVisible, [](P p) { return p.checkImageWrapperImageKeepSize == 0; }},
    {"checkImageWrapperImageSetWidth", kVisible, ImageRatioKept},
    {"lblImageWrapperImageWidth", kVisible, ImageWidthGiven},
    {"textImageWrapperImageWidth", kVisible, ImageWidthGiven},
    {"udImageWrapperImageWidth", kVisible, ImageWidthGiven},
    {"lblImageWrapperImageHeight", kVisible, ImageHeightGiven},
    {"textImageWrapperImageHeight", kVisible, ImageHeightGiven},
    {"udImageWrapperImageHeight", kVisible, ImageHeightGiven},
    // Thumbnails
    {"btnThumbnailsPageColors", kEnabled, IsSet<&GalleryProject::checkThumbnailsPageSetColors>},
    {"btnThumbnailsTableBGColor", kVisible, IsSet<&GalleryProject::checkThumbnailsTableUseBGColor>},
    {"checkThumbnailsImageSetWidth", kVisible, ThumbnailRatioKept},
    {"lblThumbnailsImageWidth", kVisible, ThumbnailWidthGiven},
    {"textThumbnailsImageWidth", kVisible, ThumbnailWidthGiven},
    {"udThumbnailsImageWidth", kVisible, ThumbnailWidthGiven},
    {"lblThumbnailsImageHeight", kVisible, ThumbnailHeightGiven},
    {"textThumbnailsImageHeight", kVisible, ThumbnailHeightGiven},
    {"udThumbnailsImageHeight", kVisible, ThumbnailHeightGiven},
    // Captions
    {"frmCaptionsImages", kVisible, Wrappers},
    {"btnCaptionsImagesRegular", kEnabled, IsSet<&GalleryProject::checkCaptionsImagesRegular>},
    {"comboCaptionsImagesRegularPlacement", kEnabled, IsSet<&GalleryProject::checkCaptionsImagesRegular>},
    {"comboCaptionsImagesRegularAlignment", kEnabled, IsSet<&GalleryProject::checkCaptionsImagesRegular>},
    {"btnCaptionsImagesPopup", kEnabled, IsSet<&GalleryProject::checkCaptionsImagesPopup>},
    {"btnCaptionsThumbnailsRegular", kEnabled, IsSet<&GalleryProject::checkCaptionsThumbnailsRegular>},
    {"comboCaptionsThumbnailsRegularPlacement", kEnabled, IsSet<&GalleryProject::checkCaptionsThumbnailsRegular>},
    {"comboCaptionsThumbnailsRegularAlignment", kEnabled, IsSet<&GalleryProject::checkCaptionsThumbnailsRegular>},
    {"btnCaptionsThumbnailsPopup", kEnabled, IsSet<&GalleryProject::checkCaptionsThumbnailsPopup>},
    // Page links
    {"frmPageLinksOnImagePages", kVisible, Wrappers},
    {"btnPageLinksImageIndexLink", kEnabled, SingleFrame},
    {"textPageLinksThumbnailMaxDirectLinks", kEnabled, IsSet<&GalleryProject::checkPageLinksThumbnailDirectLinks>},
    {"udPageLinksThumbnailMaxDirectLinks", kEnabled, IsSet<&GalleryProject::checkPageLinksThumbnailDirectLinks>},
};

constexpr UnitLabel kUnitLabels[] = {
    {"lblFrameLayoutFrameSize", "Frame Size (%)", "Frame Size (Pixels)",
     &GalleryProject::checkGalleryFrameSizeInPercent},
    {"lblImageWrapperImageWidth", "Width (%)", "Width (Pixels)", &GalleryProject::checkImageWrapperImageSizesInPercent},
    {"lblImageWrapperImageHeight", "Height (%)", "Height (Pixels)",
     &GalleryProject::checkImageWrapperImageSizesInPercent},
};

constexpr AlignmentList kAlignmentLists[] = {
    {&GalleryProject::comboCaptionsImagesRegularAlignment, &GalleryProject::comboCaptionsImagesRegularPlacement, 2},
    {&GalleryProject::comboCaptionsThumbnailsRegularAlignment, &GalleryProject::comboCaptionsThumbnailsRegularPlacement,
     2},
};

}  // namespace

std::span<const ControlRule> ControlRules() {
  return kRules;
}

std::span<const UnitLabel> UnitLabels() {
  return kUnitLabels;
}

std::span<const AlignmentList> AlignmentLists() {
  return kAlignmentLists;
}

bool IsAboveOrBelow(const AlignmentList& list, const GalleryProject& project) {
  return project.*list.placement >= list.firstAboveOrBelow;
}

int LayoutPicture(const GalleryProject& project) {
  return project.comboGalleryLayoutType + 1;
}

}  // namespace vantorium
