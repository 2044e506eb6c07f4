#include "core/ProjectFields.h"

#include <stdexcept>

namespace vantorium {
namespace {

constexpr std::string_view kGalleryLayoutType[] = {"single frame", "thumbnail frame left", "thumbnail frame right",
                                                   "thumbnail frame top", "thumbnail frame bottom"};
constexpr std::string_view kGalleryFrameSizingPriority[] = {"set thumbnail frame size, image frame follows",
                                                            "set image frame size, thumbnail frame follows"};
constexpr std::string_view kSlideShowBeginWith[] = {"first thumbnail page", "first image"};
constexpr std::string_view kSlideShowActionAfterImage[] = {"go to next image", "back to thumbnail page of image",
                                                           "back to first thumbnail page"};
constexpr std::string_view kSlideShowStartOverWith[] = {"back to first thumbnail page", "back to first image", "stop"};
constexpr std::string_view kImagesSortingOrder[] = {"unsorted",
                                                    "sort by name (asc)",
                                                    "sort by name (desc)",
                                                    "sort by path (asc)",
                                                    "sort by path (desc)",
                                                    "sort by size (asc)",
                                                    "sort by size (desc)",
                                                    "sort by date/time (asc)",
                                                    "sort by date/time (desc)"};
constexpr std::string_view kThumbnailsTableAlignment[] = {"fit to page", "left", "center", "right"};
constexpr std::string_view kCaptionPlacement[] = {"place left to image", "place right to image", "place above image",
                                                  "place below image"};
constexpr std::string_view kDescriptionPlacement[] = {"no automatic placement", "place left to image",
                                                      "place right to image", "place above image", "place below image"};
constexpr std::string_view kCaptionAlignmentVertical[] = {"align top", "align center", "align bottom"};
constexpr std::string_view kCaptionAlignmentHorizontal[] = {"align left", "align center", "align right"};
constexpr std::string_view kThumbnailLinkPlacement[] = {"no automatic placement", "above thumbnail table",
                                                        "below thumbnail table", "above and below thumbnail table"};
constexpr std::string_view kImageLinkPlacement[] = {"no automatic placement", "above image", "below image",
                                                    "above and below image"};

// clang-format off
const ProjectField kFields[] = {
    {.name = "textGalleryTitle", .kind = FieldKind::Text, .member = &GalleryProject::textGalleryTitle},
    {.name = "GalleryHeadCode", .kind = FieldKind::Text, .member = &GalleryProject::GalleryHeadCode},
    {.name = "GalleryInfoText", .kind = FieldKind::Text, .member = &GalleryProject::GalleryInfoText},
    {.name = "comboGalleryLayoutType", .kind = FieldKind::Choice, .member = &GalleryProject::comboGalleryLayoutType, .values = kGalleryLayoutType},
    {.name = "checkGalleryFrameSizeInPercent", .kind = FieldKind::Flag, .member = &GalleryProject::checkGalleryFrameSizeInPercent},
    {.name = "textGalleryFrameSize", .kind = FieldKind::Digits, .member = &GalleryProject::textGalleryFrameSize, .range = DigitsRange{1, 99999, 1, 99999}},
    {.name = "comboGalleryFrameSizingPriority", .kind = FieldKind::Choice, .member = &GalleryProject::comboGalleryFrameSizingPriority, .values = kGalleryFrameSizingPriority},
    {.name = "ThumbnailFrameSize", .kind = FieldKind::Size, .member = &GalleryProject::ThumbnailFrameSize},
    {.name = "ImageFrameSize", .kind = FieldKind::Size, .member = &GalleryProject::ImageFrameSize},
    {.name = "checkGalleryFramesResizable", .kind = FieldKind::Flag, .member = &GalleryProject::checkGalleryFramesResizable},
    {.name = "checkGalleryFramesDisplayBorders", .kind = FieldKind::Flag, .member = &GalleryProject::checkGalleryFramesDisplayBorders},
    {.name = "textThumbnailFrameName", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailFrameName},
    {.name = "comboImageFrameName", .kind = FieldKind::Text, .member = &GalleryProject::comboImageFrameName},
    {.name = "checkGallerySlideShow", .kind = FieldKind::Flag, .member = &GalleryProject::checkGallerySlideShow},
    {.name = "comboGallerySlideShowBeginWith", .kind = FieldKind::Choice, .member = &GalleryProject::comboGallerySlideShowBeginWith, .values = kSlideShowBeginWith},
    {.name = "checkGallerySlideShowAutoStart", .kind = FieldKind::Flag, .member = &GalleryProject::checkGallerySlideShowAutoStart},
    {.name = "textGallerySlideShowAutoStartDelay", .kind = FieldKind::Digits, .member = &GalleryProject::textGallerySlideShowAutoStartDelay, .range = DigitsRange{0, 999999, std::nullopt, 999999}},
    {.name = "comboGallerySlideShowActionAfterImage", .kind = FieldKind::Choice, .member = &GalleryProject::comboGallerySlideShowActionAfterImage, .values = kSlideShowActionAfterImage},
    {.name = "comboGallerySlideShowStartOverWith", .kind = FieldKind::Choice, .member = &GalleryProject::comboGallerySlideShowStartOverWith, .values = kSlideShowStartOverWith},
    {.name = "textGallerySlideShowDelay", .kind = FieldKind::Digits, .member = &GalleryProject::textGallerySlideShowDelay, .range = DigitsRange{0, 999999, std::nullopt, 999999}},
    {.name = "textImageSettingsSubFolder", .kind = FieldKind::Text, .member = &GalleryProject::textImageSettingsSubFolder},
    {.name = "textThumbnailImageSettingsSubFolder", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailImageSettingsSubFolder},
    {.name = "textThumbnailImageSettingsFilePrefix", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailImageSettingsFilePrefix},
    {.name = "textThumbnailPageSettingsFilePrefix", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailPageSettingsFilePrefix},
    {.name = "comboThumbnailPageSettingsFileExtension", .kind = FieldKind::Text, .member = &GalleryProject::comboThumbnailPageSettingsFileExtension},
    {.name = "comboImageWrapperSettingsFileExtension", .kind = FieldKind::Text, .member = &GalleryProject::comboImageWrapperSettingsFileExtension},
    {.name = "comboImagesSortingOrder", .kind = FieldKind::Choice, .member = &GalleryProject::comboImagesSortingOrder, .values = kImagesSortingOrder},
    {.name = "checkImageWrapperUse", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperUse},
    {.name = "ImagePageHeadCode", .kind = FieldKind::Text, .member = &GalleryProject::ImagePageHeadCode},
    {.name = "ImagePageBodyHeader", .kind = FieldKind::Text, .member = &GalleryProject::ImagePageBodyHeader},
    {.name = "ImagePageBodyFooter", .kind = FieldKind::Text, .member = &GalleryProject::ImagePageBodyFooter},
    {.name = "ImageHeader", .kind = FieldKind::Text, .member = &GalleryProject::ImageHeader},
    {.name = "ImageFooter", .kind = FieldKind::Text, .member = &GalleryProject::ImageFooter},
    {.name = "textImageWrapperBackdrop", .kind = FieldKind::Text, .member = &GalleryProject::textImageWrapperBackdrop},
    {.name = "checkImageWrapperSetColors", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperSetColors},
    {.name = "ImagePageBgColor", .kind = FieldKind::Color, .member = &GalleryProject::ImagePageBgColor},
    {.name = "ImagePageTextColor", .kind = FieldKind::Color, .member = &GalleryProject::ImagePageTextColor},
    {.name = "ImagePageLinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ImagePageLinkColor},
    {.name = "ImagePageVLinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ImagePageVLinkColor},
    {.name = "ImagePageALinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ImagePageALinkColor},
    {.name = "checkImageWrapperImageKeepSize", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperImageKeepSize},
    {.name = "checkImageWrapperImagePhysicalResize", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperImagePhysicalResize},
    {.name = "checkImageWrapperImageKeepAspectRatio", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperImageKeepAspectRatio},
    {.name = "checkImageWrapperImageSetWidth", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperImageSetWidth},
    {.name = "checkImageWrapperImageSizesInPercent", .kind = FieldKind::Flag, .member = &GalleryProject::checkImageWrapperImageSizesInPercent, .keptByReset = true},
    {.name = "textImageWrapperImageWidth", .kind = FieldKind::Digits, .member = &GalleryProject::textImageWrapperImageWidth, .range = DigitsRange{1, 99999, 1, std::nullopt}},
    {.name = "textImageWrapperImageHeight", .kind = FieldKind::Digits, .member = &GalleryProject::textImageWrapperImageHeight, .range = DigitsRange{1, 99999, 1, std::nullopt}},
    {.name = "ImageFilters", .kind = FieldKind::Record, .member = &GalleryProject::ImageFilters},
    {.name = "ImageWatermark", .kind = FieldKind::Record, .member = &GalleryProject::ImageWatermark},
    {.name = "ThumbnailPageHeadCode", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailPageHeadCode},
    {.name = "ThumbnailPageBodyHeader", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailPageBodyHeader},
    {.name = "ThumbnailPageBodyFooter", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailPageBodyFooter},
    {.name = "ThumbnailHeader", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailHeader},
    {.name = "ThumbnailFooter", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailFooter},
    {.name = "textThumbnailsPageBackdrop", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailsPageBackdrop},
    {.name = "checkThumbnailsPageSetColors", .kind = FieldKind::Flag, .member = &GalleryProject::checkThumbnailsPageSetColors},
    {.name = "ThumbnailPageBgColor", .kind = FieldKind::Color, .member = &GalleryProject::ThumbnailPageBgColor},
    {.name = "ThumbnailPageTextColor", .kind = FieldKind::Color, .member = &GalleryProject::ThumbnailPageTextColor},
    {.name = "ThumbnailPageLinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ThumbnailPageLinkColor},
    {.name = "ThumbnailPageVLinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ThumbnailPageVLinkColor},
    {.name = "ThumbnailPageALinkColor", .kind = FieldKind::Color, .member = &GalleryProject::ThumbnailPageALinkColor},
    {.name = "textThumbnailsTableRows", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsTableRows, .range = DigitsRange{1, 99999, 0, 99999}},
    {.name = "textThumbnailsTableColumns", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsTableColumns, .range = DigitsRange{1, 99999, 0, 99999}},
    {.name = "textThumbnailsTableBorder", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsTableBorder, .range = DigitsRange{0, 99999, 0, 99999}},
    {.name = "textThumbnailsTableCellSpacing", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsTableCellSpacing, .range = DigitsRange{0, 99999, 0, 99999}},
    {.name = "textThumbnailsTableCellPadding", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsTableCellPadding, .range = DigitsRange{0, 99999, 0, 99999}},
    {.name = "comboThumbnailsTableAlignment", .kind = FieldKind::Choice, .member = &GalleryProject::comboThumbnailsTableAlignment, .values = kThumbnailsTableAlignment},
    {.name = "textThumbnailsTableBackdrop", .kind = FieldKind::Text, .member = &GalleryProject::textThumbnailsTableBackdrop},
    {.name = "checkThumbnailsTableUseBGColor", .kind = FieldKind::Flag, .member = &GalleryProject::checkThumbnailsTableUseBGColor},
    {.name = "btnThumbnailsTableBGColor", .kind = FieldKind::Color, .member = &GalleryProject::btnThumbnailsTableBGColor},
    {.name = "checkThumbnailsImageKeepAspectRatio", .kind = FieldKind::Flag, .member = &GalleryProject::checkThumbnailsImageKeepAspectRatio},
    {.name = "checkThumbnailsImageSetWidth", .kind = FieldKind::Flag, .member = &GalleryProject::checkThumbnailsImageSetWidth},
    {.name = "textThumbnailsImageWidth", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsImageWidth, .range = DigitsRange{1, 99999, 1, std::nullopt}},
    {.name = "textThumbnailsImageHeight", .kind = FieldKind::Digits, .member = &GalleryProject::textThumbnailsImageHeight, .range = DigitsRange{1, 99999, 1, std::nullopt}},
    {.name = "ThumbnailFilters", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailFilters},
    {.name = "ThumbnailWatermark", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailWatermark},
    {.name = "checkCaptionsImagesRegular", .kind = FieldKind::Flag, .member = &GalleryProject::checkCaptionsImagesRegular},
    {.name = "ImageRegularCaption", .kind = FieldKind::Text, .member = &GalleryProject::ImageRegularCaption},
    {.name = "comboCaptionsImagesRegularPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboCaptionsImagesRegularPlacement, .values = kCaptionPlacement},
    {.name = "comboCaptionsImagesRegularAlignment", .kind = FieldKind::Choice, .member = &GalleryProject::comboCaptionsImagesRegularAlignment, .values = kCaptionAlignmentVertical},
    {.name = "checkCaptionsImagesPopup", .kind = FieldKind::Flag, .member = &GalleryProject::checkCaptionsImagesPopup},
    {.name = "ImagePopupCaption", .kind = FieldKind::Text, .member = &GalleryProject::ImagePopupCaption},
    {.name = "checkCaptionsThumbnailsRegular", .kind = FieldKind::Flag, .member = &GalleryProject::checkCaptionsThumbnailsRegular},
    {.name = "ThumbnailRegularCaption", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailRegularCaption},
    {.name = "comboCaptionsThumbnailsRegularPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboCaptionsThumbnailsRegularPlacement, .values = kCaptionPlacement},
    {.name = "comboCaptionsThumbnailsRegularAlignment", .kind = FieldKind::Choice, .member = &GalleryProject::comboCaptionsThumbnailsRegularAlignment, .values = kCaptionAlignmentVertical},
    {.name = "checkCaptionsThumbnailsPopup", .kind = FieldKind::Flag, .member = &GalleryProject::checkCaptionsThumbnailsPopup},
    {.name = "ThumbnailPopupCaption", .kind = FieldKind::Text, .member = &GalleryProject::ThumbnailPopupCaption},
    {.name = "textHeader", .kind = FieldKind::Text, .member = &GalleryProject::textHeader},
    {.name = "textFooter", .kind = FieldKind::Text, .member = &GalleryProject::textFooter},
    {.name = "comboImageDescriptionPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboImageDescriptionPlacement, .values = kDescriptionPlacement},
    {.name = "comboImageDescriptionAlignment", .kind = FieldKind::Choice, .member = &GalleryProject::comboImageDescriptionAlignment, .values = kCaptionAlignmentVertical},
    {.name = "textThumbHeader", .kind = FieldKind::Text, .member = &GalleryProject::textThumbHeader},
    {.name = "textThumbFooter", .kind = FieldKind::Text, .member = &GalleryProject::textThumbFooter},
    {.name = "comboThumbnailDescriptionPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboThumbnailDescriptionPlacement, .values = kDescriptionPlacement},
    {.name = "comboThumbnailDescriptionAlignment", .kind = FieldKind::Choice, .member = &GalleryProject::comboThumbnailDescriptionAlignment, .values = kCaptionAlignmentVertical},
    {.name = "checkPageLinksThumbnailDirectLinks", .kind = FieldKind::Flag, .member = &GalleryProject::checkPageLinksThumbnailDirectLinks},
    {.name = "textPageLinksThumbnailMaxDirectLinks", .kind = FieldKind::Digits, .member = &GalleryProject::textPageLinksThumbnailMaxDirectLinks, .range = DigitsRange{0, 99999, 0, 99999}},
    {.name = "comboPageLinksThumbnailLinkPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboPageLinksThumbnailLinkPlacement, .values = kThumbnailLinkPlacement},
    {.name = "ThumbnailFirstLink", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailFirstLink},
    {.name = "ThumbnailLastLink", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailLastLink},
    {.name = "ThumbnailPreviousLink", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailPreviousLink},
    {.name = "ThumbnailNextLink", .kind = FieldKind::Record, .member = &GalleryProject::ThumbnailNextLink},
    {.name = "comboPageLinksImageLinkPlacement", .kind = FieldKind::Choice, .member = &GalleryProject::comboPageLinksImageLinkPlacement, .values = kImageLinkPlacement},
    {.name = "ImageFirstLink", .kind = FieldKind::Record, .member = &GalleryProject::ImageFirstLink},
    {.name = "ImageLastLink", .kind = FieldKind::Record, .member = &GalleryProject::ImageLastLink},
    {.name = "ImagePreviousLink", .kind = FieldKind::Record, .member = &GalleryProject::ImagePreviousLink},
    {.name = "ImageNextLink", .kind = FieldKind::Record, .member = &GalleryProject::ImageNextLink},
    {.name = "ImageIndexLink", .kind = FieldKind::Record, .member = &GalleryProject::ImageIndexLink},
    {.name = "checkImagesUpright", .kind = FieldKind::Flag, .member = &GalleryProject::checkImagesUpright, .hiddenWhileOff = true},
    {.name = "checkImagesTrueColors", .kind = FieldKind::Flag, .member = &GalleryProject::checkImagesTrueColors, .hiddenWhileOff = true},
};

constexpr RecordField<ImageFilterSettings> kFilterFields[] = {
    {"checkGrayscale", &ImageFilterSettings::checkGrayscale},
    {"checkBrightness", &ImageFilterSettings::checkBrightness},
    {"sliderBrightness", &ImageFilterSettings::sliderBrightness},
    {"checkFade", &ImageFilterSettings::checkFade},
    {"sliderFade", &ImageFilterSettings::sliderFade},
    {"checkNoise", &ImageFilterSettings::checkNoise},
    {"sliderNoise", &ImageFilterSettings::sliderNoise},
    {"checkNoiseRandom", &ImageFilterSettings::checkNoiseRandom},
    {"sliderQuality", &ImageFilterSettings::sliderQuality},
};

constexpr RecordField<WatermarkSettings> kWatermarkFields[] = {
    {"checkUseWatermark", &WatermarkSettings::checkUseWatermark},
    {"textWatermark", &WatermarkSettings::textWatermark},
    {"comboTextPlacement", &WatermarkSettings::comboTextPlacement},
    {"sliderAlpha", &WatermarkSettings::sliderAlpha},
    {"FontName", &WatermarkSettings::FontName},
    {"FontSize", &WatermarkSettings::FontSize},
    {"FontWeight", &WatermarkSettings::FontWeight},
    {"FontItalic", &WatermarkSettings::FontItalic},
    {"FontUnderline", &WatermarkSettings::FontUnderline},
    {"FontStrikeout", &WatermarkSettings::FontStrikeout},
    {"Color", &WatermarkSettings::Color},
};

constexpr RecordField<LinkSettings> kLinkFields[] = {
    {"textLinkLabel", &LinkSettings::textLinkLabel},
    {"textLinkGraphic", &LinkSettings::textLinkGraphic},
    {"textLinkGraphicDisabled", &LinkSettings::textLinkGraphicDisabled},
};
// clang-format on

}  // namespace

std::span<const ProjectField> ProjectFields() {
  return kFields;
}

const ProjectField& FieldOf(const FieldMember& member) {
  for (const ProjectField& field : kFields) {
    if (field.member == member) return field;
  }
  throw std::out_of_range("A member of GalleryProject is missing in its table of fields");
}

bool IsHidden(const GalleryProject& project, const ProjectField& field) {
  return field.hiddenWhileOff && project.*std::get<Flag GalleryProject::*>(field.member) != 1;
}

ValueList AlignmentTexts(bool aboveOrBelow) {
  return aboveOrBelow ? ValueList(kCaptionAlignmentHorizontal) : ValueList(kCaptionAlignmentVertical);
}

std::span<const RecordField<ImageFilterSettings>> FilterFields() {
  return kFilterFields;
}
std::span<const RecordField<WatermarkSettings>> WatermarkFields() {
  return kWatermarkFields;
}
std::span<const RecordField<LinkSettings>> LinkFields() {
  return kLinkFields;
}

}  // namespace vantorium
