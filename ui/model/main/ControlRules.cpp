#include "ui/model/main/ControlRules.h"

#include "core/GalleryTargets.h"

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

// Whether the width or the height of a target's pictures is given; both are unless the aspect ratio is kept.
template <const TargetFields& target>
bool RatioKept(P p) {
  return IsOn(p.*target.size.keepAspectRatio);
}
template <const TargetFields& target>
bool WidthGiven(P p) {
  return !RatioKept<target>(p) || IsOn(p.*target.size.setWidth);
}
template <const TargetFields& target>
bool HeightGiven(P p) {
  return !RatioKept<target>(p) || IsOff(p.*target.size.setWidth);
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
    {"btnImageWrapperColors", kEnabled, IsSet<kImages.colors.use>},
    {"frmImageWrapperImageSettingsSub", kVisible, [](P p) { return IsOff(p.checkImageWrapperImageKeepSize); }},
    {"checkImageWrapperImageSetWidth", kVisible, RatioKept<kImages>},
    {"lblImageWrapperImageWidth", kVisible, WidthGiven<kImages>},
    {"textImageWrapperImageWidth", kVisible, WidthGiven<kImages>},
    {"udImageWrapperImageWidth", kVisible, WidthGiven<kImages>},
    {"lblImageWrapperImageHeight", kVisible, HeightGiven<kImages>},
    {"textImageWrapperImageHeight", kVisible, HeightGiven<kImages>},
    {"udImageWrapperImageHeight", kVisible, HeightGiven<kImages>},
    // Thumbnails
    {"btnThumbnailsPageColors", kEnabled, IsSet<kThumbnails.colors.use>},
    {"btnThumbnailsTableBGColor", kVisible, IsSet<&GalleryProject::checkThumbnailsTableUseBGColor>},
    {"checkThumbnailsImageSetWidth", kVisible, RatioKept<kThumbnails>},
    {"lblThumbnailsImageWidth", kVisible, WidthGiven<kThumbnails>},
    {"textThumbnailsImageWidth", kVisible, WidthGiven<kThumbnails>},
    {"udThumbnailsImageWidth", kVisible, WidthGiven<kThumbnails>},
    {"lblThumbnailsImageHeight", kVisible, HeightGiven<kThumbnails>},
    {"textThumbnailsImageHeight", kVisible, HeightGiven<kThumbnails>},
    {"udThumbnailsImageHeight", kVisible, HeightGiven<kThumbnails>},
    // Captions
    {"frmCaptionsImages", kVisible, Wrappers},
    {"btnCaptionsImagesRegular", kEnabled, IsSet<kImages.captions.regular>},
    {"comboCaptionsImagesRegularPlacement", kEnabled, IsSet<kImages.captions.regular>},
    {"comboCaptionsImagesRegularAlignment", kEnabled, IsSet<kImages.captions.regular>},
    {"btnCaptionsImagesPopup", kEnabled, IsSet<kImages.captions.popup>},
    {"btnCaptionsThumbnailsRegular", kEnabled, IsSet<kThumbnails.captions.regular>},
    {"comboCaptionsThumbnailsRegularPlacement", kEnabled, IsSet<kThumbnails.captions.regular>},
    {"comboCaptionsThumbnailsRegularAlignment", kEnabled, IsSet<kThumbnails.captions.regular>},
    {"btnCaptionsThumbnailsPopup", kEnabled, IsSet<kThumbnails.captions.popup>},
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
    {kImages.captions.alignment, kImages.captions.placement},
    {kThumbnails.captions.alignment, kThumbnails.captions.placement},
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
