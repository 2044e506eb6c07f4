#include "ui/model/main/ControlRules.h"

#include "core/GalleryTargets.h"

namespace vantorium::ui {
namespace {

using P = const core::GalleryProject&;

constexpr auto kVisible = ControlProperty::Visible;
constexpr auto kEnabled = ControlProperty::Enabled;

bool SeveralFrames(P p) {
  return !core::IsSingleFrame(p);
}
bool SlideShow(P p) {
  return core::IsOn(p.checkGallerySlideShow);
}
bool BeginsWithPage(P p) {
  return core::SlideShowBeginOf(p) == core::SlideShowBegin::FirstThumbnailPage;
}
bool GoesToNextImage(P p) {
  return core::SlideShowActionOf(p) == core::SlideShowAction::NextImage;
}
bool Wrappers(P p) {
  return core::IsOn(p.checkImageWrapperUse);
}

// Whether the width or the height of a target's pictures is given; both are unless the aspect ratio is kept.
template <const core::TargetFields& target>
bool RatioKept(P p) {
  return core::IsOn(p.*target.size.keepAspectRatio);
}
template <const core::TargetFields& target>
bool WidthGiven(P p) {
  return !RatioKept<target>(p) || core::IsOn(p.*target.size.setWidth);
}
template <const core::TargetFields& target>
bool HeightGiven(P p) {
  return !RatioKept<target>(p) || core::IsOff(p.*target.size.setWidth);
}

template <core::Flag core::GalleryProject::*flag>
bool IsSet(P p) {
  return core::IsOn(p.*flag);
}

constexpr ControlRule kRules[] = {
    // Gallery
    {"frmFrameLayoutSingleFrame", kVisible, core::IsSingleFrame},
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
    {"btnImageWrapperColors", kEnabled, IsSet<core::kImages.colors.use>},
    {"frmImageWrapperImageSettingsSub", kVisible, [](P p) { return core::IsOff(p.checkImageWrapperImageKeepSize); }},
    {"checkImageWrapperImageSetWidth", kVisible, RatioKept<core::kImages>},
    {"lblImageWrapperImageWidth", kVisible, WidthGiven<core::kImages>},
    {"textImageWrapperImageWidth", kVisible, WidthGiven<core::kImages>},
    {"udImageWrapperImageWidth", kVisible, WidthGiven<core::kImages>},
    {"lblImageWrapperImageHeight", kVisible, HeightGiven<core::kImages>},
    {"textImageWrapperImageHeight", kVisible, HeightGiven<core::kImages>},
    {"udImageWrapperImageHeight", kVisible, HeightGiven<core::kImages>},
    // Thumbnails
    {"btnThumbnailsPageColors", kEnabled, IsSet<core::kThumbnails.colors.use>},
    {"btnThumbnailsTableBGColor", kVisible, IsSet<&core::GalleryProject::checkThumbnailsTableUseBGColor>},
    {"checkThumbnailsImageSetWidth", kVisible, RatioKept<core::kThumbnails>},
    {"lblThumbnailsImageWidth", kVisible, WidthGiven<core::kThumbnails>},
    {"textThumbnailsImageWidth", kVisible, WidthGiven<core::kThumbnails>},
    {"udThumbnailsImageWidth", kVisible, WidthGiven<core::kThumbnails>},
    {"lblThumbnailsImageHeight", kVisible, HeightGiven<core::kThumbnails>},
    {"textThumbnailsImageHeight", kVisible, HeightGiven<core::kThumbnails>},
    {"udThumbnailsImageHeight", kVisible, HeightGiven<core::kThumbnails>},
    // Captions
    {"frmCaptionsImages", kVisible, Wrappers},
    {"btnCaptionsImagesRegular", kEnabled, IsSet<core::kImages.captions.regular>},
    {"comboCaptionsImagesRegularPlacement", kEnabled, IsSet<core::kImages.captions.regular>},
    {"comboCaptionsImagesRegularAlignment", kEnabled, IsSet<core::kImages.captions.regular>},
    {"btnCaptionsImagesPopup", kEnabled, IsSet<core::kImages.captions.popup>},
    {"btnCaptionsThumbnailsRegular", kEnabled, IsSet<core::kThumbnails.captions.regular>},
    {"comboCaptionsThumbnailsRegularPlacement", kEnabled, IsSet<core::kThumbnails.captions.regular>},
    {"comboCaptionsThumbnailsRegularAlignment", kEnabled, IsSet<core::kThumbnails.captions.regular>},
    {"btnCaptionsThumbnailsPopup", kEnabled, IsSet<core::kThumbnails.captions.popup>},
    // Page links
    {"frmPageLinksOnImagePages", kVisible, Wrappers},
    {"btnPageLinksImageIndexLink", kEnabled, core::IsSingleFrame},
    {"textPageLinksThumbnailMaxDirectLinks", kEnabled,
     IsSet<&core::GalleryProject::checkPageLinksThumbnailDirectLinks>},
    {"udPageLinksThumbnailMaxDirectLinks", kEnabled, IsSet<&core::GalleryProject::checkPageLinksThumbnailDirectLinks>},
};

constexpr UnitLabel kUnitLabels[] = {
    {"lblFrameLayoutFrameSize", "Frame Size (%)", "Frame Size (Pixels)",
     &core::GalleryProject::checkGalleryFrameSizeInPercent},
    {"lblImageWrapperImageWidth", "Width (%)", "Width (Pixels)",
     &core::GalleryProject::checkImageWrapperImageSizesInPercent},
    {"lblImageWrapperImageHeight", "Height (%)", "Height (Pixels)",
     &core::GalleryProject::checkImageWrapperImageSizesInPercent},
};

constexpr AlignmentList kAlignmentLists[] = {
    {core::kImages.captions.alignment, core::kImages.captions.placement},
    {core::kThumbnails.captions.alignment, core::kThumbnails.captions.placement},
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

bool IsAboveOrBelow(const AlignmentList& list, const core::GalleryProject& project) {
  return core::IsAboveOrBelow(core::CaptionPlacement(project.*list.placement));
}

int LayoutPicture(const core::GalleryProject& project) {
  return project.comboGalleryLayoutType + 1;
}

}  // namespace vantorium::ui
