#include "core/ProjectFields.h"

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace vantorium::core {
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

using P = GalleryProject;

constexpr ProjectField TextRow(std::string_view name, std::string P::*member) {
  return {.name = name, .kind = FieldKind::Text, .member = member};
}
constexpr ProjectField DigitsRow(std::string_view name, Digits P::*member, DigitsRange range) {
  return {.name = name, .kind = FieldKind::Digits, .member = member, .range = range};
}
constexpr ProjectField FlagRow(std::string_view name, Flag P::*member) {
  return {.name = name, .kind = FieldKind::Flag, .member = member};
}
constexpr ProjectField ChoiceRow(std::string_view name, Choice P::*member, ValueList values) {
  return {.name = name, .kind = FieldKind::Choice, .member = member, .values = values};
}
constexpr ProjectField ColorRow(std::string_view name, Color P::*member) {
  return {.name = name, .kind = FieldKind::Color, .member = member};
}
constexpr ProjectField SizeRow(std::string_view name, std::int32_t P::*member) {
  return {.name = name, .kind = FieldKind::Size, .member = member};
}
template <typename Record>
constexpr ProjectField RecordRow(std::string_view name, Record P::*member) {
  return {.name = name, .kind = FieldKind::Record, .member = member};
}
constexpr ProjectField KeptByReset(ProjectField field) {
  field.keptByReset = true;
  return field;
}

constexpr ProjectField HiddenWhileOff(ProjectField field) {
  field.hiddenWhileOff = true;
  return field;
}

// Two arguments for a row: the member's name as text, and its pointer.
#define MEMBER(Record, name) #name, &Record::name

constexpr ProjectField kFields[] = {
    TextRow(MEMBER(P, textGalleryTitle)),
    TextRow(MEMBER(P, GalleryHeadCode)),
    TextRow(MEMBER(P, GalleryInfoText)),
    ChoiceRow(MEMBER(P, comboGalleryLayoutType), kGalleryLayoutType),
    FlagRow(MEMBER(P, checkGalleryFrameSizeInPercent)),
    DigitsRow(MEMBER(P, textGalleryFrameSize), {1, 99999, 1, 99999}),
    ChoiceRow(MEMBER(P, comboGalleryFrameSizingPriority), kGalleryFrameSizingPriority),
    SizeRow(MEMBER(P, ThumbnailFrameSize)),
    SizeRow(MEMBER(P, ImageFrameSize)),
    FlagRow(MEMBER(P, checkGalleryFramesResizable)),
    FlagRow(MEMBER(P, checkGalleryFramesDisplayBorders)),
    TextRow(MEMBER(P, textThumbnailFrameName)),
    TextRow(MEMBER(P, comboImageFrameName)),
    FlagRow(MEMBER(P, checkGallerySlideShow)),
    ChoiceRow(MEMBER(P, comboGallerySlideShowBeginWith), kSlideShowBeginWith),
    FlagRow(MEMBER(P, checkGallerySlideShowAutoStart)),
    DigitsRow(MEMBER(P, textGallerySlideShowAutoStartDelay), {0, 999999, std::nullopt, 999999}),
    ChoiceRow(MEMBER(P, comboGallerySlideShowActionAfterImage), kSlideShowActionAfterImage),
    ChoiceRow(MEMBER(P, comboGallerySlideShowStartOverWith), kSlideShowStartOverWith),
    DigitsRow(MEMBER(P, textGallerySlideShowDelay), {0, 999999, std::nullopt, 999999}),
    TextRow(MEMBER(P, textImageSettingsSubFolder)),
    TextRow(MEMBER(P, textThumbnailImageSettingsSubFolder)),
    TextRow(MEMBER(P, textThumbnailImageSettingsFilePrefix)),
    TextRow(MEMBER(P, textThumbnailPageSettingsFilePrefix)),
    TextRow(MEMBER(P, comboThumbnailPageSettingsFileExtension)),
    TextRow(MEMBER(P, comboImageWrapperSettingsFileExtension)),
    ChoiceRow(MEMBER(P, comboImagesSortingOrder), kImagesSortingOrder),
    FlagRow(MEMBER(P, checkImageWrapperUse)),
    TextRow(MEMBER(P, ImagePageHeadCode)),
    TextRow(MEMBER(P, ImagePageBodyHeader)),
    TextRow(MEMBER(P, ImagePageBodyFooter)),
    TextRow(MEMBER(P, ImageHeader)),
    TextRow(MEMBER(P, ImageFooter)),
    TextRow(MEMBER(P, textImageWrapperBackdrop)),
    FlagRow(MEMBER(P, checkImageWrapperSetColors)),
    ColorRow(MEMBER(P, ImagePageBgColor)),
    ColorRow(MEMBER(P, ImagePageTextColor)),
    ColorRow(MEMBER(P, ImagePageLinkColor)),
    ColorRow(MEMBER(P, ImagePageVLinkColor)),
    ColorRow(MEMBER(P, ImagePageALinkColor)),
    FlagRow(MEMBER(P, checkImageWrapperImageKeepSize)),
    FlagRow(MEMBER(P, checkImageWrapperImagePhysicalResize)),
    FlagRow(MEMBER(P, checkImageWrapperImageKeepAspectRatio)),
    FlagRow(MEMBER(P, checkImageWrapperImageSetWidth)),
    KeptByReset(FlagRow(MEMBER(P, checkImageWrapperImageSizesInPercent))),
    DigitsRow(MEMBER(P, textImageWrapperImageWidth), {1, 99999, 1, std::nullopt}),
    DigitsRow(MEMBER(P, textImageWrapperImageHeight), {1, 99999, 1, std::nullopt}),
    RecordRow(MEMBER(P, ImageFilters)),
    RecordRow(MEMBER(P, ImageWatermark)),
    TextRow(MEMBER(P, ThumbnailPageHeadCode)),
    TextRow(MEMBER(P, ThumbnailPageBodyHeader)),
    TextRow(MEMBER(P, ThumbnailPageBodyFooter)),
    TextRow(MEMBER(P, ThumbnailHeader)),
    TextRow(MEMBER(P, ThumbnailFooter)),
    TextRow(MEMBER(P, textThumbnailsPageBackdrop)),
    FlagRow(MEMBER(P, checkThumbnailsPageSetColors)),
    ColorRow(MEMBER(P, ThumbnailPageBgColor)),
    ColorRow(MEMBER(P, ThumbnailPageTextColor)),
    ColorRow(MEMBER(P, ThumbnailPageLinkColor)),
    ColorRow(MEMBER(P, ThumbnailPageVLinkColor)),
    ColorRow(MEMBER(P, ThumbnailPageALinkColor)),
    DigitsRow(MEMBER(P, textThumbnailsTableRows), {1, 99999, 0, 99999}),
    DigitsRow(MEMBER(P, textThumbnailsTableColumns), {1, 99999, 0, 99999}),
    DigitsRow(MEMBER(P, textThumbnailsTableBorder), {0, 99999, 0, 99999}),
    DigitsRow(MEMBER(P, textThumbnailsTableCellSpacing), {0, 99999, 0, 99999}),
    DigitsRow(MEMBER(P, textThumbnailsTableCellPadding), {0, 99999, 0, 99999}),
    ChoiceRow(MEMBER(P, comboThumbnailsTableAlignment), kThumbnailsTableAlignment),
    TextRow(MEMBER(P, textThumbnailsTableBackdrop)),
    FlagRow(MEMBER(P, checkThumbnailsTableUseBGColor)),
    ColorRow(MEMBER(P, btnThumbnailsTableBGColor)),
    FlagRow(MEMBER(P, checkThumbnailsImageKeepAspectRatio)),
    FlagRow(MEMBER(P, checkThumbnailsImageSetWidth)),
    DigitsRow(MEMBER(P, textThumbnailsImageWidth), {1, 99999, 1, std::nullopt}),
    DigitsRow(MEMBER(P, textThumbnailsImageHeight), {1, 99999, 1, std::nullopt}),
    RecordRow(MEMBER(P, ThumbnailFilters)),
    RecordRow(MEMBER(P, ThumbnailWatermark)),
    FlagRow(MEMBER(P, checkCaptionsImagesRegular)),
    TextRow(MEMBER(P, ImageRegularCaption)),
    ChoiceRow(MEMBER(P, comboCaptionsImagesRegularPlacement), kCaptionPlacement),
    ChoiceRow(MEMBER(P, comboCaptionsImagesRegularAlignment), kCaptionAlignmentVertical),
    FlagRow(MEMBER(P, checkCaptionsImagesPopup)),
    TextRow(MEMBER(P, ImagePopupCaption)),
    FlagRow(MEMBER(P, checkCaptionsThumbnailsRegular)),
    TextRow(MEMBER(P, ThumbnailRegularCaption)),
    ChoiceRow(MEMBER(P, comboCaptionsThumbnailsRegularPlacement), kCaptionPlacement),
    ChoiceRow(MEMBER(P, comboCaptionsThumbnailsRegularAlignment), kCaptionAlignmentVertical),
    FlagRow(MEMBER(P, checkCaptionsThumbnailsPopup)),
    TextRow(MEMBER(P, ThumbnailPopupCaption)),
    TextRow(MEMBER(P, textHeader)),
    TextRow(MEMBER(P, textFooter)),
    ChoiceRow(MEMBER(P, comboImageDescriptionPlacement), kDescriptionPlacement),
    ChoiceRow(MEMBER(P, comboImageDescriptionAlignment), kCaptionAlignmentVertical),
    TextRow(MEMBER(P, textThumbHeader)),
    TextRow(MEMBER(P, textThumbFooter)),
    ChoiceRow(MEMBER(P, comboThumbnailDescriptionPlacement), kDescriptionPlacement),
    ChoiceRow(MEMBER(P, comboThumbnailDescriptionAlignment), kCaptionAlignmentVertical),
    FlagRow(MEMBER(P, checkPageLinksThumbnailDirectLinks)),
    DigitsRow(MEMBER(P, textPageLinksThumbnailMaxDirectLinks), {0, 99999, 0, 99999}),
    ChoiceRow(MEMBER(P, comboPageLinksThumbnailLinkPlacement), kThumbnailLinkPlacement),
    RecordRow(MEMBER(P, ThumbnailFirstLink)),
    RecordRow(MEMBER(P, ThumbnailLastLink)),
    RecordRow(MEMBER(P, ThumbnailPreviousLink)),
    RecordRow(MEMBER(P, ThumbnailNextLink)),
    ChoiceRow(MEMBER(P, comboPageLinksImageLinkPlacement), kImageLinkPlacement),
    RecordRow(MEMBER(P, ImageFirstLink)),
    RecordRow(MEMBER(P, ImageLastLink)),
    RecordRow(MEMBER(P, ImagePreviousLink)),
    RecordRow(MEMBER(P, ImageNextLink)),
    RecordRow(MEMBER(P, ImageIndexLink)),
    HiddenWhileOff(FlagRow(MEMBER(P, checkImagesUpright))),
    HiddenWhileOff(FlagRow(MEMBER(P, checkImagesTrueColors))),
};

constexpr RecordField<image::ImageFilterSettings> kFilterFields[] = {
    {MEMBER(image::ImageFilterSettings, checkGrayscale)},   {MEMBER(image::ImageFilterSettings, checkBrightness)},
    {MEMBER(image::ImageFilterSettings, sliderBrightness)}, {MEMBER(image::ImageFilterSettings, checkFade)},
    {MEMBER(image::ImageFilterSettings, sliderFade)},       {MEMBER(image::ImageFilterSettings, checkNoise)},
    {MEMBER(image::ImageFilterSettings, sliderNoise)},      {MEMBER(image::ImageFilterSettings, checkNoiseRandom)},
    {MEMBER(image::ImageFilterSettings, sliderQuality)},
};

constexpr RecordField<image::WatermarkSettings> kWatermarkFields[] = {
    {MEMBER(image::WatermarkSettings, checkUseWatermark)},
    {MEMBER(image::WatermarkSettings, textWatermark)},
    {MEMBER(image::WatermarkSettings, comboTextPlacement)},
    {MEMBER(image::WatermarkSettings, sliderAlpha)},
    {MEMBER(image::WatermarkSettings, FontName)},
    {MEMBER(image::WatermarkSettings, FontSize)},
    {MEMBER(image::WatermarkSettings, FontWeight)},
    {MEMBER(image::WatermarkSettings, FontItalic)},
    {MEMBER(image::WatermarkSettings, FontUnderline)},
    {MEMBER(image::WatermarkSettings, FontStrikeout)},
    {MEMBER(image::WatermarkSettings, Color)},
};

constexpr RecordField<LinkSettings> kLinkFields[] = {
    {MEMBER(LinkSettings, textLinkLabel)},
    {MEMBER(LinkSettings, textLinkGraphic)},
    {MEMBER(LinkSettings, textLinkGraphicDisabled)},
};

#undef MEMBER

/// Converts to the type of every member.
struct AnyMember {
  template <typename Type>
  operator Type() const;
};

/// Whether `Record` has at least `count` members. As an aggregate it takes an initializer for each, but no more.
template <typename Record, std::size_t count>
constexpr bool kHolds = []<std::size_t... index>(std::index_sequence<index...>) {
  return requires {
    Record{(static_cast<void>(index), AnyMember())...};
  };
}
(std::make_index_sequence<count>());

template <typename Record, std::size_t count>
constexpr bool kHasMembers = kHolds<Record, count> && !kHolds<Record, count + 1>;

static_assert(kHasMembers<GalleryProject, std::size(kFields)>, "a row for each member");
static_assert(kHasMembers<image::ImageFilterSettings, std::size(kFilterFields)>, "a row for each member");
static_assert(kHasMembers<image::WatermarkSettings, std::size(kWatermarkFields)>, "a row for each member");
static_assert(kHasMembers<LinkSettings, std::size(kLinkFields)>, "a row for each member");

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

const std::string& DefaultOf(std::string GalleryProject::*field) {
  static const GalleryProject kNew;
  return kNew.*field;
}

bool IsHidden(const GalleryProject& project, const ProjectField& field) {
  return field.hiddenWhileOff && !IsOn(project.*std::get<Flag GalleryProject::*>(field.member));
}

ValueList AlignmentTexts(bool aboveOrBelow) {
  return aboveOrBelow ? ValueList(kCaptionAlignmentHorizontal) : ValueList(kCaptionAlignmentVertical);
}

std::span<const RecordField<image::ImageFilterSettings>> FilterFields() {
  return kFilterFields;
}
std::span<const RecordField<image::WatermarkSettings>> WatermarkFields() {
  return kWatermarkFields;
}
std::span<const RecordField<LinkSettings>> LinkFields() {
  return kLinkFields;
}

}  // namespace vantorium::core
