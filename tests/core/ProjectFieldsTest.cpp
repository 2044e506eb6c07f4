#include "core/ProjectFields.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

/// The kinds that a member of this type may have.
std::set<FieldKind> KindsOf(const FieldMember& member) {
  if (std::holds_alternative<std::string GalleryProject::*>(member)) return {FieldKind::Text, FieldKind::Digits};
  if (std::holds_alternative<std::int16_t GalleryProject::*>(member)) return {FieldKind::Flag, FieldKind::Choice};
  if (std::holds_alternative<std::int32_t GalleryProject::*>(member)) return {FieldKind::Size};
  if (std::holds_alternative<Color GalleryProject::*>(member)) return {FieldKind::Color};
  return {FieldKind::Record};
}

template <typename Record, typename Member>
std::ptrdiff_t OffsetOf(const Record& record, const Member& member) {
  return std::visit(
      [&](auto pointer) {
        return reinterpret_cast<const char*>(&(record.*pointer)) - reinterpret_cast<const char*>(&record);
      },
      member);
}

/// Rising offsets also prove that no member has two rows.
template <typename Fields, typename Record>
void ExpectRisingOffsets(const Fields& fields, const Record& record) {
  std::ptrdiff_t last = -1;
  for (const auto& field : fields) {
    const std::ptrdiff_t offset = OffsetOf(record, field.member);
    EXPECT_GT(offset, last) << field.name;
    last = offset;
  }
}

std::string TextOf(const std::string& text) {
  return text;
}
std::string TextOf(std::int16_t number) {
  return std::to_string(number);
}
std::string TextOf(std::int32_t number) {
  return std::to_string(number);
}
std::string TextOf(Color color) {
  return ColorToHex(color);
}
std::string TextOf(const LinkSettings& link) {
  return link.textLinkLabel + "|" + link.textLinkGraphic + "|" + link.textLinkGraphicDisabled;
}

template <typename Record>
std::string RecordText(const Record& record, std::span<const RecordField<Record>> fields) {
  std::string text;
  for (const auto& field : fields) {
    const std::string value = std::visit(
        [&](auto member) {
          if constexpr (std::is_same_v<decltype(member), bool Record::*>)
            return std::to_string(record.*member ? 1 : 0);
          else
            return TextOf(record.*member);
        },
        field.member);
    text += std::string(field.name) + "=" + value + " ";
  }
  return text;
}
std::string TextOf(const image::ImageFilterSettings& filters) {
  return RecordText(filters, FilterFields());
}
std::string TextOf(const image::WatermarkSettings& watermark) {
  return RecordText(watermark, WatermarkFields());
}

std::string ValueText(const GalleryProject& project, const ProjectField& field) {
  return std::visit([&](auto member) { return TextOf(project.*member); }, field.member);
}

constexpr char kFilterDefaults[] =
    "checkGrayscale=0 checkBrightness=0 sliderBrightness=25 checkFade=0 sliderFade=192 checkNoise=0 sliderNoise=50 "
    "checkNoiseRandom=0 sliderQuality=85 ";

const std::vector<std::pair<std::string, std::string>>& NewProjectValues() {
  static const std::vector<std::pair<std::string, std::string>> values = {
      {"textGalleryTitle", "Gallery7"},
      {"GalleryHeadCode", ""},
      {"GalleryInfoText", ""},
      {"comboGalleryLayoutType", "0"},
      {"checkGalleryFrameSizeInPercent", "0"},
      {"textGalleryFrameSize", "200"},
      {"comboGalleryFrameSizingPriority", "0"},
      {"ThumbnailFrameSize", "200"},
      {"ImageFrameSize", "0"},
      {"checkGalleryFramesResizable", "0"},
      {"checkGalleryFramesDisplayBorders", "0"},
      {"textThumbnailFrameName", "thumb_frame"},
      {"comboImageFrameName", "_self"},
      {"checkGallerySlideShow", "0"},
      {"comboGallerySlideShowBeginWith", "1"},
      {"checkGallerySlideShowAutoStart", "1"},
      {"textGallerySlideShowAutoStartDelay", "10"},
      {"comboGallerySlideShowActionAfterImage", "0"},
      {"comboGallerySlideShowStartOverWith", "1"},
      {"textGallerySlideShowDelay", "5"},
      {"textImageSettingsSubFolder", "Images"},
      {"textThumbnailImageSettingsSubFolder", "Thumbs"},
      {"textThumbnailImageSettingsFilePrefix", "thumb_"},
      {"textThumbnailPageSettingsFilePrefix", "thumbpage_"},
      {"comboThumbnailPageSettingsFileExtension", ".htm"},
      {"comboImageWrapperSettingsFileExtension", ".htm"},
      {"comboImagesSortingOrder", "0"},
      {"checkImageWrapperUse", "1"},
      {"ImagePageHeadCode", ""},
      {"ImagePageBodyHeader",
       "<!-- This code is used to center the contents of the image wrapper vertically and horizontally -->\r\n"
       "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n<TR>\r\n<TD ALIGN=\"CENTER\" VALIGN=\"CENTER\">"},
      {"ImagePageBodyFooter", "</TD>\r\n</TR>\r\n</TABLE>"},
      {"ImageHeader", ""},
      {"ImageFooter", ""},
      {"textImageWrapperBackdrop", ""},
      {"checkImageWrapperSetColors", "0"},
      {"ImagePageBgColor", "FFFFFF"},
      {"ImagePageTextColor", "000000"},
      {"ImagePageLinkColor", "A00000"},
      {"ImagePageVLinkColor", "A00000"},
      {"ImagePageALinkColor", "0000FF"},
      {"checkImageWrapperImageKeepSize", "0"},
      {"checkImageWrapperImagePhysicalResize", "1"},
      {"checkImageWrapperImageKeepAspectRatio", "1"},
      {"checkImageWrapperImageSetWidth", "0"},
      {"checkImageWrapperImageSizesInPercent", "0"},
      {"textImageWrapperImageWidth", "400"},
      {"textImageWrapperImageHeight", "300"},
      {"ImageFilters", kFilterDefaults},
      {"ImageWatermark",
       "checkUseWatermark=0 textWatermark=SAMPLE comboTextPlacement=10 sliderAlpha=65 FontName=Arial FontSize=36 "
       "FontWeight=700 FontItalic=0 FontUnderline=0 FontStrikeout=0 Color=FFFFFF "},
      {"ThumbnailPageHeadCode", ""},
      {"ThumbnailPageBodyHeader",
       "<!-- This code is used to center the contents of the thumbnail page vertically -->\r\n"
       "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n<TR>\r\n<TD VALIGN=\"CENTER\">"},
      {"ThumbnailPageBodyFooter", "</TD>\r\n</TR>\r\n</TABLE>"},
      {"ThumbnailHeader", ""},
      {"ThumbnailFooter", ""},
      {"textThumbnailsPageBackdrop", ""},
      {"checkThumbnailsPageSetColors", "0"},
      {"ThumbnailPageBgColor", "FFFFFF"},
      {"ThumbnailPageTextColor", "000000"},
      {"ThumbnailPageLinkColor", "A00000"},
      {"ThumbnailPageVLinkColor", "A00000"},
      {"ThumbnailPageALinkColor", "0000FF"},
      {"textThumbnailsTableRows", "5"},
      {"textThumbnailsTableColumns", "5"},
      {"textThumbnailsTableBorder", "0"},
      {"textThumbnailsTableCellSpacing", "2"},
      {"textThumbnailsTableCellPadding", "0"},
      {"comboThumbnailsTableAlignment", "2"},
      {"textThumbnailsTableBackdrop", ""},
      {"checkThumbnailsTableUseBGColor", "0"},
      {"btnThumbnailsTableBGColor", "000000"},
      {"checkThumbnailsImageKeepAspectRatio", "0"},
      {"checkThumbnailsImageSetWidth", "0"},
      {"textThumbnailsImageWidth", "60"},
      {"textThumbnailsImageHeight", "60"},
      {"ThumbnailFilters", kFilterDefaults},
      {"ThumbnailWatermark",
       "checkUseWatermark=0 textWatermark=THUMB comboTextPlacement=10 sliderAlpha=65 FontName=Arial FontSize=14 "
       "FontWeight=700 FontItalic=0 FontUnderline=0 FontStrikeout=0 Color=FFFFFF "},
      {"checkCaptionsImagesRegular", "0"},
      {"ImageRegularCaption", ""},
      {"comboCaptionsImagesRegularPlacement", "3"},
      {"comboCaptionsImagesRegularAlignment", "2"},
      {"checkCaptionsImagesPopup", "0"},
      {"ImagePopupCaption", ""},
      {"checkCaptionsThumbnailsRegular", "0"},
      {"ThumbnailRegularCaption", ""},
      {"comboCaptionsThumbnailsRegularPlacement", "3"},
      {"comboCaptionsThumbnailsRegularAlignment", "1"},
      {"checkCaptionsThumbnailsPopup", "0"},
      {"ThumbnailPopupCaption", ""},
      {"textHeader", ""},
      {"textFooter", ""},
      {"comboImageDescriptionPlacement", "0"},
      {"comboImageDescriptionAlignment", "0"},
      {"textThumbHeader", ""},
      {"textThumbFooter", ""},
      {"comboThumbnailDescriptionPlacement", "0"},
      {"comboThumbnailDescriptionAlignment", "0"},
      {"checkPageLinksThumbnailDirectLinks", "0"},
      {"textPageLinksThumbnailMaxDirectLinks", "0"},
      {"comboPageLinksThumbnailLinkPlacement", "1"},
      {"ThumbnailFirstLink", "FIRST||"},
      {"ThumbnailLastLink", "LAST||"},
      {"ThumbnailPreviousLink", "BACK||"},
      {"ThumbnailNextLink", "NEXT||"},
      {"comboPageLinksImageLinkPlacement", "2"},
      {"ImageFirstLink", "FIRST||"},
      {"ImageLastLink", "LAST||"},
      {"ImagePreviousLink", "BACK||"},
      {"ImageNextLink", "NEXT||"},
      {"ImageIndexLink", "INDEX||"},
      {"checkImagesUpright", "0"},
      {"checkImagesTrueColors", "0"},
  };
  return values;
}

/// Sets a value that differs from that of a new project.
struct Changed {
  void operator()(std::string& text) const { text += "#changed"; }
  void operator()(std::int16_t& number) const { number = 77; }
  void operator()(std::int32_t& number) const { number = 77; }
  void operator()(Color& color) const { color = 0x123456; }
  void operator()(LinkSettings& link) const { link = {"a", "b", "c"}; }
  void operator()(image::ImageFilterSettings& filters) const { filters = {1, 1, 1, 1, 1, 1, 1, 1, 1}; }
  void operator()(image::WatermarkSettings& watermark) const { watermark.textWatermark = "changed"; }
};

// The compiler checks in ProjectFields.cpp that each table has as many rows as its record has members.
TEST(ProjectFields, AreInTheOrderOfTheRecord) {
  ExpectRisingOffsets(ProjectFields(), GalleryProject());
  ExpectRisingOffsets(FilterFields(), image::ImageFilterSettings());
  ExpectRisingOffsets(WatermarkFields(), image::WatermarkSettings());
  ExpectRisingOffsets(LinkFields(), LinkSettings());
}

TEST(ProjectFields, AreOfAKindThatFitsTheMemberAndItsName) {
  for (const ProjectField& field : ProjectFields()) {
    EXPECT_TRUE(KindsOf(field.member).contains(field.kind)) << field.name;
    EXPECT_EQ(field.name.starts_with("check"), field.kind == FieldKind::Flag) << field.name;
  }
}

TEST(ProjectFields, NamesAreUnique) {
  std::set<std::string_view> names;
  for (const ProjectField& field : ProjectFields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
}

TEST(ProjectFields, ANewProjectHasTheDefaultsOfTheTable) {
  GalleryProject project;
  ResetToDefaults(project, "Gallery7");
  ASSERT_EQ(NewProjectValues().size(), ProjectFields().size());
  for (std::size_t i = 0; i < ProjectFields().size(); ++i) {
    const auto& [name, value] = NewProjectValues()[i];
    EXPECT_EQ(ProjectFields()[i].name, name);
    EXPECT_EQ(ValueText(project, ProjectFields()[i]), value) << name;
  }
}

TEST(ProjectFields, OnlyAdditionalSettingsThatAreOffAreHidden) {
  GalleryProject project;
  const auto hidden = [&project] {
    std::vector<std::string> names;
    for (const ProjectField& field : ProjectFields()) {
      if (IsHidden(project, field)) names.emplace_back(field.name);
    }
    return names;
  };
  EXPECT_EQ(hidden(), (std::vector<std::string>{"checkImagesUpright", "checkImagesTrueColors"}));
  project.checkImagesUpright = 1;
  EXPECT_EQ(hidden(), std::vector<std::string>{"checkImagesTrueColors"});
}

TEST(ProjectFields, ResetRestoresTheDefaultsOfAllFieldsExceptTheOneThatIsKept) {
  GalleryProject project;
  for (const ProjectField& field : ProjectFields()) {
    std::visit([&](auto member) { Changed()(project.*member); }, field.member);
  }
  ResetToDefaults(project, "Gallery7");
  for (std::size_t i = 0; i < ProjectFields().size(); ++i) {
    const auto& [name, value] = NewProjectValues()[i];
    const bool kept = name == "checkImageWrapperImageSizesInPercent";
    EXPECT_EQ(ValueText(project, ProjectFields()[i]), kept ? "77" : value) << name;
    EXPECT_EQ(ProjectFields()[i].keptByReset, kept) << name;
  }
}

TEST(ProjectFields, TheDefaultOfATextIsItsValueInANewProject) {
  EXPECT_EQ(DefaultOf(&GalleryProject::comboImageFrameName), "_self");
  EXPECT_EQ(DefaultOf(&GalleryProject::textGallerySlideShowDelay), "5");
  EXPECT_EQ(DefaultOf(&GalleryProject::textGalleryTitle), "");
}

TEST(ProjectFields, DigitsHaveSpinnerRangesAndBounds) {
  const std::map<std::string_view, DigitsRange> expected = {
      {"textGalleryFrameSize", {1, 99999, 1, 99999}},
      {"textGallerySlideShowAutoStartDelay", {0, 999999, std::nullopt, 999999}},
      {"textGallerySlideShowDelay", {0, 999999, std::nullopt, 999999}},
      {"textImageWrapperImageWidth", {1, 99999, 1, std::nullopt}},
      {"textImageWrapperImageHeight", {1, 99999, 1, std::nullopt}},
      {"textThumbnailsTableRows", {1, 99999, 0, 99999}},
      {"textThumbnailsTableColumns", {1, 99999, 0, 99999}},
      {"textThumbnailsTableBorder", {0, 99999, 0, 99999}},
      {"textThumbnailsTableCellSpacing", {0, 99999, 0, 99999}},
      {"textThumbnailsTableCellPadding", {0, 99999, 0, 99999}},
      {"textThumbnailsImageWidth", {1, 99999, 1, std::nullopt}},
      {"textThumbnailsImageHeight", {1, 99999, 1, std::nullopt}},
      {"textPageLinksThumbnailMaxDirectLinks", {0, 99999, 0, 99999}},
  };
  std::size_t found = 0;
  for (const ProjectField& field : ProjectFields()) {
    ASSERT_EQ(field.range.has_value(), field.kind == FieldKind::Digits) << field.name;
    if (!field.range) continue;
    ASSERT_TRUE(expected.contains(field.name)) << field.name;
    ++found;
    const DigitsRange& range = expected.at(field.name);
    EXPECT_EQ(field.range->spinnerMinimum, range.spinnerMinimum) << field.name;
    EXPECT_EQ(field.range->spinnerMaximum, range.spinnerMaximum) << field.name;
    EXPECT_EQ(field.range->lowerBound, range.lowerBound) << field.name;
    EXPECT_EQ(field.range->upperBound, range.upperBound) << field.name;
  }
  EXPECT_EQ(found, expected.size());
}

using Texts = std::vector<std::string>;

TEST(ProjectFields, ChoicesHaveTheirValueLists) {
  const Texts captionPlacement = {"place left to image", "place right to image", "place above image",
                                  "place below image"};
  const Texts descriptionPlacement = {"no automatic placement", "place left to image", "place right to image",
                                      "place above image", "place below image"};
  const Texts alignment = {"align top", "align center", "align bottom"};
  const std::map<std::string_view, Texts> expected = {
      {"comboGalleryLayoutType",
       {"single frame", "thumbnail frame left", "thumbnail frame right", "thumbnail frame top",
        "thumbnail frame bottom"}},
      {"comboGalleryFrameSizingPriority",
       {"set thumbnail frame size, image frame follows", "set image frame size, thumbnail frame follows"}},
      {"comboGallerySlideShowBeginWith", {"first thumbnail page", "first image"}},
      {"comboGallerySlideShowActionAfterImage",
       {"go to next image", "back to thumbnail page of image", "back to first thumbnail page"}},
      {"comboGallerySlideShowStartOverWith", {"back to first thumbnail page", "back to first image", "stop"}},
      {"comboImagesSortingOrder",
       {"unsorted", "sort by name (asc)", "sort by name (desc)", "sort by path (asc)", "sort by path (desc)",
        "sort by size (asc)", "sort by size (desc)", "sort by date/time (asc)", "sort by date/time (desc)"}},
      {"comboThumbnailsTableAlignment", {"fit to page", "left", "center", "right"}},
      {"comboCaptionsImagesRegularPlacement", captionPlacement},
      {"comboCaptionsImagesRegularAlignment", alignment},
      {"comboCaptionsThumbnailsRegularPlacement", captionPlacement},
      {"comboCaptionsThumbnailsRegularAlignment", alignment},
      {"comboImageDescriptionPlacement", descriptionPlacement},
      {"comboImageDescriptionAlignment", alignment},
      {"comboThumbnailDescriptionPlacement", descriptionPlacement},
      {"comboThumbnailDescriptionAlignment", alignment},
      {"comboPageLinksThumbnailLinkPlacement",
       {"no automatic placement", "above thumbnail table", "below thumbnail table", "above and below thumbnail table"}},
      {"comboPageLinksImageLinkPlacement",
       {"no automatic placement", "above image", "below image", "above and below image"}},
  };
  std::size_t found = 0;
  for (const ProjectField& field : ProjectFields()) {
    ASSERT_EQ(!field.values.empty(), field.kind == FieldKind::Choice) << field.name;
    if (field.values.empty()) continue;
    ASSERT_TRUE(expected.contains(field.name)) << field.name;
    ++found;
    EXPECT_EQ(Texts(field.values.begin(), field.values.end()), expected.at(field.name)) << field.name;
  }
  EXPECT_EQ(found, expected.size());
}

TEST(ProjectFields, DefaultsOfChoicesAreInTheirValueLists) {
  const GalleryProject project;
  for (const ProjectField& field : ProjectFields()) {
    if (field.kind != FieldKind::Choice) continue;
    const Choice value = project.*std::get<std::int16_t GalleryProject::*>(field.member);
    EXPECT_GE(value, 0) << field.name;
    EXPECT_LT(static_cast<std::size_t>(value), field.values.size()) << field.name;
  }
}

TEST(ProjectFields, AlignmentTextsFollowThePlacement) {
  const ValueList beside = AlignmentTexts(false);
  const ValueList stacked = AlignmentTexts(true);
  EXPECT_EQ(Texts(beside.begin(), beside.end()), (Texts{"align top", "align center", "align bottom"}));
  EXPECT_EQ(Texts(stacked.begin(), stacked.end()), (Texts{"align left", "align center", "align right"}));
}

TEST(ProjectFields, FieldOfFindsEachMember) {
  for (const ProjectField& field : ProjectFields()) EXPECT_EQ(FieldOf(field.member).name, field.name);
  EXPECT_THROW(std::ignore = FieldOf(static_cast<std::string GalleryProject::*>(nullptr)), std::out_of_range);
}

}  // namespace
}  // namespace vantorium::core
