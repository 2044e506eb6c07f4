#include "ui/model/main/ControlRules.h"

namespace vantorium {
namespace {

using P = const GalleryProject&;

constexpr auto kVisible = ControlProperty::Visible;
constexpr auto kEnabled = ControlProperty::Enabled;

bool SeveralFrames(P p) {
  return !IsSingleFrame(p);
}
bool SlideShow(P p) {
  return IsOn(p.checkGallerySlideShow);
}
bool BeginsWithPage(P p) {
  return SlideShowBeginOf(p) == SlideShowBegin::FirstThumbnailPage;
}
bool GoesToNextImage(P p) {
  return SlideShowActionOf(p) == SlideShowAction::NextImage;
}
bool Wrappers(P p) {
  return IsOn(p.checkImageWrapperUse);
}

// Whether the width or the height of a picture is given; both are unless the aspect ratio is kept.
bool ImageRatioKept(P p) {
  return IsOn(p.checkImageWrapperImageKeepAspectRatio);
}
bool ImageWidthGiven(P p) {
  return !ImageRatioKept(p) || IsOn(p.checkImageWrapperImageSetWidth);
}
bool ImageHeightGiven(P p) {
  return !ImageRatioKept(p) || IsOff(p.checkImageWrapperImageSetWidth);
}
bool ThumbnailRatioKept(P p) {
  return IsOn(p.checkThumbnailsImageKeepAspectRatio);
}
bool ThumbnailWidthGiven(P p) {
  return !ThumbnailRatioKept(p) || IsOn(p.checkThumbnailsImageSetWidth);
}
bool ThumbnailHeightGiven(P p) {
  return !ThumbnailRatioKept(p) || IsOff(p.checkThumbnailsImageSetWidth);
}

template <Flag GalleryProject::*flag>
bool IsSet(P p) {
  return IsOn(p.*flag);
}

constexpr ControlRule kRules[] = {
    // Gallery
    {"frmFrameLayoutSingleFrame", kVisible, IsSingleFrame},
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
    {"frmImageWrapperImageSettingsSub", kVisible, [](P p) { return IsOff(p.checkImageWrapperImageKeepSize); }},
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
    {"btnPageLinksImageIndexLink", kEnabled, IsSingleFrame},
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
    {&GalleryProject::comboCaptionsImagesRegularAlignment, &GalleryProject::comboCaptionsImagesRegularPlacement},
    {&GalleryProject::comboCaptionsThumbnailsRegularAlignment,
     &GalleryProject::comboCaptionsThumbnailsRegularPlacement},
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
  return IsAboveOrBelow(CaptionPlacement(project.*list.placement));
}

int LayoutPicture(const GalleryProject& project) {
  return project.comboGalleryLayoutType + 1;
}

}  // namespace vantorium
