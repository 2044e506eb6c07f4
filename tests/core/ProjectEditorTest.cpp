#include "core/ProjectEditor.h"
#include "core/ProjectFields.h"
#include "env/RuntimeFailure.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

class ProjectEditorTest : public testing::Test {
 protected:
  GalleryProject project;
  bool modified = false;
  ProjectEditor editor{project, modified};

  std::int32_t FailureOfFrameSize(const std::string& text) {
    try {
      editor.Set(&GalleryProject::textGalleryFrameSize, text);
    } catch (const env::RuntimeFailure& failure) {
      return failure.Number();
    }
    return 0;
  }
};

TEST_F(ProjectEditorTest, EveryFieldStoresItsValueAndMarksTheProjectAsModified) {
  for (const ProjectField& field : ProjectFields()) {
    SCOPED_TRACE(field.name);
    modified = false;
    if (field.kind == FieldKind::Text || field.kind == FieldKind::Digits) {
      const auto member = std::get<std::string GalleryProject::*>(field.member);
      const std::string value = field.kind == FieldKind::Digits ? "77" : "a \"text\"\r\n<B>";
      editor.Set(member, value);
      EXPECT_EQ(project.*member, value);
    } else if (field.kind == FieldKind::Color) {
      const auto member = std::get<Color GalleryProject::*>(field.member);
      editor.Set(member, Color{0x123456});
      EXPECT_EQ(project.*member, 0x123456U);
    } else if (field.kind == FieldKind::Flag || field.kind == FieldKind::Choice) {
      const auto member = std::get<std::int16_t GalleryProject::*>(field.member);
      for (const std::int16_t value : {std::int16_t{1}, std::int16_t{0}}) {
        editor.Set(member, value);
        EXPECT_EQ(project.*member, value);
      }
    }
    EXPECT_EQ(modified, field.kind != FieldKind::Record && field.kind != FieldKind::Size);
  }
}

TEST_F(ProjectEditorTest, RecordsAreStoredAsAWhole) {
  editor.Set(&GalleryProject::ImageIndexLink, LinkSettings{"label", "graphic", "disabled"});
  EXPECT_EQ(project.ImageIndexLink.textLinkLabel, "label");
  EXPECT_EQ(project.ImageIndexLink.textLinkGraphic, "graphic");
  EXPECT_EQ(project.ImageIndexLink.textLinkGraphicDisabled, "disabled");
  EXPECT_TRUE(std::exchange(modified, false));
  editor.Set(&GalleryProject::ThumbnailFilters, image::ImageFilterSettings{.sliderQuality = 12});
  EXPECT_EQ(project.ThumbnailFilters.sliderQuality, 12);
  EXPECT_EQ(project.ImageFilters.sliderQuality, 85);
  EXPECT_TRUE(std::exchange(modified, false));
  editor.Set(&GalleryProject::ImageWatermark, image::WatermarkSettings{.textWatermark = "mine"});
  EXPECT_EQ(project.ImageWatermark.textWatermark, "mine");
  EXPECT_EQ(project.ThumbnailWatermark.textWatermark, "THUMB");
  EXPECT_TRUE(modified);
}

TEST_F(ProjectEditorTest, AnEditToTheSameValueAlsoMarksTheProjectAsModified) {
  editor.Set(&GalleryProject::textGalleryFrameSize, project.textGalleryFrameSize);
  EXPECT_TRUE(modified);
}

TEST_F(ProjectEditorTest, ANumberBelowItsMinimumBecomesTheMinimum) {
  using Field = std::string GalleryProject::*;
  const Field fromOne[] = {&GalleryProject::textGalleryFrameSize, &GalleryProject::textImageWrapperImageWidth,
                           &GalleryProject::textImageWrapperImageHeight, &GalleryProject::textThumbnailsImageWidth,
                           &GalleryProject::textThumbnailsImageHeight};
  const Field fromZero[] = {
      &GalleryProject::textThumbnailsTableRows,        &GalleryProject::textThumbnailsTableColumns,
      &GalleryProject::textThumbnailsTableBorder,      &GalleryProject::textThumbnailsTableCellSpacing,
      &GalleryProject::textThumbnailsTableCellPadding, &GalleryProject::textPageLinksThumbnailMaxDirectLinks};
  const auto expectEdit = [this](Field field, const char* typed, const char* expected) {
    editor.Set(field, typed);
    EXPECT_EQ(project.*field, expected) << FieldOf(field).name << " = " << typed;
  };
  for (const Field field : fromOne) {
    for (const char* low : {"0", "-1", "-99999", "0.5", "00"}) expectEdit(field, low, "1");
    for (const char* good : {"1", "2", "32768", "99999", "01"}) expectEdit(field, good, good);
  }
  for (const Field field : fromZero) {
    for (const char* low : {"-1", "-2", "-0.5"}) expectEdit(field, low, "0");
    for (const char* good : {"0", "1", "32768", "99999"}) expectEdit(field, good, good);
  }
}

TEST_F(ProjectEditorTest, ANumberThatItsFieldCannotHoldBecomesTheLargestThatItCan) {
  using Field = std::string GalleryProject::*;
  const Field toFiveDigits[] = {&GalleryProject::textGalleryFrameSize,
                                &GalleryProject::textThumbnailsTableRows,
                                &GalleryProject::textThumbnailsTableColumns,
                                &GalleryProject::textThumbnailsTableBorder,
                                &GalleryProject::textThumbnailsTableCellSpacing,
                                &GalleryProject::textThumbnailsTableCellPadding,
                                &GalleryProject::textPageLinksThumbnailMaxDirectLinks};
  for (const Field field : toFiveDigits) {
    for (const char* high : {"100000", "99999.5", "999999", "4294967297", "1e300"}) {
      editor.Set(field, high);
      EXPECT_EQ(project.*field, "99999") << FieldOf(field).name << " = " << high;
    }
  }
}

TEST_F(ProjectEditorTest, PictureSizesHaveNoMaximum) {
  for (const auto field : {&GalleryProject::textImageWrapperImageWidth, &GalleryProject::textThumbnailsImageHeight}) {
    editor.Set(field, "999999");
    EXPECT_EQ(project.*field, "999999") << FieldOf(field).name;
  }
}

TEST_F(ProjectEditorTest, DelaysHaveOnlyAMaximum) {
  const std::pair<const char*, const char*> cases[] = {
      {"-5", "-5"},   {"0", "0"}, {"999999", "999999"}, {"1000000", "999999"}, {"1e99", "999999"},
      {"abc", "abc"}, {"", ""}};
  for (const auto& [typed, expected] : cases) {
    editor.Set(&GalleryProject::textGallerySlideShowDelay, typed);
    EXPECT_EQ(project.textGallerySlideShowDelay, expected) << typed;
    editor.Set(&GalleryProject::textGallerySlideShowAutoStartDelay, typed);
    EXPECT_EQ(project.textGallerySlideShowAutoStartDelay, expected) << typed;
  }
}

TEST_F(ProjectEditorTest, AnEmptyNumberStaysEmptyUntilItIsNormalized) {
  for (const ProjectField& field : ProjectFields()) {
    if (field.kind != FieldKind::Digits) continue;
    const auto member = std::get<std::string GalleryProject::*>(field.member);
    editor.Set(member, "");
    EXPECT_EQ(project.*member, "") << field.name;
  }
  EXPECT_EQ(project.ThumbnailFrameSize, 200) << "an empty size is not stored";
}

TEST_F(ProjectEditorTest, DirectLinksThatAreNotANumberBecomeEmpty) {
  for (const char* typed : {"abc", "1x", "-", " ", "all"}) {
    editor.Set(&GalleryProject::textPageLinksThumbnailMaxDirectLinks, "3");
    editor.Set(&GalleryProject::textPageLinksThumbnailMaxDirectLinks, typed);
    EXPECT_EQ(project.textPageLinksThumbnailMaxDirectLinks, "") << typed;
  }
}

TEST_F(ProjectEditorTest, AFrameSizeInPercentIsAtMost99) {
  editor.Set(&GalleryProject::checkGalleryFrameSizeInPercent, Flag{1});
  const std::pair<const char*, const char*> cases[] = {{"150", "99"}, {"100", "99"}, {"99.5", "99"},    {"99", "99"},
                                                       {"30", "30"},  {"0", "1"},    {"99999999", "99"}};
  for (const auto& [typed, expected] : cases) {
    editor.Set(&GalleryProject::textGalleryFrameSize, typed);
    EXPECT_EQ(project.textGalleryFrameSize, expected) << typed;
    EXPECT_EQ(project.ThumbnailFrameSize, std::stoi(expected)) << typed;
  }
}

TEST_F(ProjectEditorTest, AFrameSizeInPixelsMayExceed99) {
  editor.Set(&GalleryProject::textGalleryFrameSize, "150");
  EXPECT_EQ(project.textGalleryFrameSize, "150");
  EXPECT_EQ(project.ThumbnailFrameSize, 150);
}

TEST_F(ProjectEditorTest, TurningPercentOnClampsTheSize) {
  editor.Set(&GalleryProject::checkGalleryFrameSizeInPercent, Flag{1});
  EXPECT_EQ(project.textGalleryFrameSize, "99");
  EXPECT_EQ(project.ThumbnailFrameSize, 99);
  editor.Set(&GalleryProject::checkGalleryFrameSizeInPercent, Flag{0});
  EXPECT_EQ(project.textGalleryFrameSize, "99") << "the old size is not restored";
}

TEST_F(ProjectEditorTest, TurningPercentOnLeavesAnEmptySizeAlone) {
  editor.Set(&GalleryProject::textGalleryFrameSize, "");
  editor.Set(&GalleryProject::checkGalleryFrameSizeInPercent, Flag{1});
  EXPECT_EQ(project.textGalleryFrameSize, "");
  EXPECT_EQ(project.ThumbnailFrameSize, 200);
}

TEST_F(ProjectEditorTest, TheSizingPriorityDecidesWhichFrameGetsTheSize) {
  editor.Set(&GalleryProject::comboGalleryFrameSizingPriority, Choice{1});
  EXPECT_EQ(project.ThumbnailFrameSize, 200);
  EXPECT_EQ(project.ImageFrameSize, 0) << "changing the priority stores nothing";
  editor.Set(&GalleryProject::textGalleryFrameSize, "300");
  EXPECT_EQ(project.ThumbnailFrameSize, 200);
  EXPECT_EQ(project.ImageFrameSize, 300);
  editor.Set(&GalleryProject::comboGalleryFrameSizingPriority, Choice{0});
  EXPECT_EQ(project.textGalleryFrameSize, "300");
  EXPECT_EQ(project.ThumbnailFrameSize, 200);
}

TEST_F(ProjectEditorTest, OnlyAFrameSizeThatIsNotANumberIsAFailure) {
  EXPECT_EQ(FailureOfFrameSize("abc"), static_cast<std::int32_t>(env::FailureKind::TypeMismatch));
  EXPECT_EQ(project.ThumbnailFrameSize, 200);
  const std::pair<const char*, std::int32_t> cases[] = {{"32768", 32768}, {"99999", 99999}, {"1e300", 99999}};
  for (const auto& [typed, stored] : cases) {
    EXPECT_EQ(FailureOfFrameSize(typed), 0) << typed;
    EXPECT_EQ(project.ThumbnailFrameSize, stored) << typed;
  }
}

TEST_F(ProjectEditorTest, ASlideShowRequiresWrapperPages) {
  editor.Set(&GalleryProject::checkImageWrapperUse, Flag{0});
  editor.Set(&GalleryProject::checkGallerySlideShow, Flag{1});
  EXPECT_EQ(project.checkImageWrapperUse, 1);
  editor.Set(&GalleryProject::checkImageWrapperUse, Flag{0});
  EXPECT_EQ(project.checkGallerySlideShow, 0);
}

TEST_F(ProjectEditorTest, WrapperPagesDoNotRequireASlideShow) {
  editor.Set(&GalleryProject::checkGallerySlideShow, Flag{1});
  editor.Set(&GalleryProject::checkGallerySlideShow, Flag{0});
  EXPECT_EQ(project.checkImageWrapperUse, 1) << "wrapper pages stay without a slide show";
  editor.Set(&GalleryProject::checkImageWrapperUse, Flag{0});
  editor.Set(&GalleryProject::checkImageWrapperUse, Flag{1});
  EXPECT_EQ(project.checkGallerySlideShow, 0) << "wrapper pages do not turn the slide show on";
  editor.Set(&GalleryProject::checkImageWrapperUse, Flag{0});
  editor.Set(&GalleryProject::checkGallerySlideShow, Flag{0});
  EXPECT_EQ(project.checkImageWrapperUse, 0) << "without a slide show wrapper pages stay off";
}

TEST_F(ProjectEditorTest, TheImageFrameNameFollowsTheLayout) {
  struct Case {
    const char* before;
    Choice layout;
    const char* after;
  };
  const Case cases[] = {{"_self", 0, "_self"},
                        {"_top", 0, "_self"},
                        {"mine", 0, "_self"},
                        {"", 0, "_self"},
                        {"_self", 1, "image_frame"},
                        {"_top", 2, "image_frame"},
                        {"_parent", 3, "image_frame"},
                        {"_blank", 4, "image_frame"},
                        {"mine", 1, "mine"},
                        {"_SELF", 1, "_SELF"},
                        {"", 1, ""},
                        {"image_frame", 2, "image_frame"}};
  for (const auto& [before, layout, after] : cases) {
    project.comboImageFrameName = before;
    editor.Set(&GalleryProject::comboGalleryLayoutType, layout);
    EXPECT_EQ(project.comboImageFrameName, after) << '"' << before << "\" with layout " << layout;
    project.comboImageFrameName = before;
    ImageFrameNameForLayout(project, layout);
    EXPECT_EQ(project.comboImageFrameName, after) << '"' << before << "\" with layout " << layout;
  }
}

TEST_F(ProjectEditorTest, RowsMayBeSetToZero) {
  editor.Set(&GalleryProject::textThumbnailsTableRows, "0");
  EXPECT_EQ(project.textThumbnailsTableRows, "0");
  EXPECT_EQ(ThumbnailPageCount(project, 100), 0);
}

class NormalizeForOutputTest : public ProjectEditorTest {};

TEST_F(NormalizeForOutputTest, LeavesANewProjectUnchanged) {
  NormalizeForOutput(project, modified);
  EXPECT_FALSE(modified);
  const GalleryProject fresh;
  for (const ProjectField& field : ProjectFields()) {
    if (field.kind != FieldKind::Text && field.kind != FieldKind::Digits) continue;
    const auto member = std::get<std::string GalleryProject::*>(field.member);
    EXPECT_EQ(project.*member, fresh.*member) << field.name;
  }
}

TEST_F(NormalizeForOutputTest, RepairsEachEmptyFieldOnItsOwn) {
  const std::pair<std::string GalleryProject::*, const char*> rows[] = {
      {&GalleryProject::textThumbnailsImageWidth, "1"},
      {&GalleryProject::textThumbnailsImageHeight, "1"},
      {&GalleryProject::textThumbnailsTableRows, "1"},
      {&GalleryProject::textThumbnailsTableColumns, "1"},
      {&GalleryProject::textThumbnailsTableCellSpacing, "0"},
      {&GalleryProject::textThumbnailsTableCellPadding, "0"},
      {&GalleryProject::textThumbnailsTableBorder, "0"},
      {&GalleryProject::textGallerySlideShowDelay, "5"},
      {&GalleryProject::textGallerySlideShowAutoStartDelay, "10"},
      {&GalleryProject::textThumbnailFrameName, "thumbnail_frame"},
      {&GalleryProject::comboImageFrameName, "image_frame"},
      {&GalleryProject::textImageWrapperImageWidth, "1"},
      {&GalleryProject::textImageWrapperImageHeight, "1"},
      {&GalleryProject::textPageLinksThumbnailMaxDirectLinks, "0"},
  };
  for (const auto& [field, expected] : rows) {
    GalleryProject one;
    one.*field = "";
    bool changed = false;
    NormalizeForOutput(one, changed);
    EXPECT_EQ(one.*field, expected) << FieldOf(field).name;
    EXPECT_TRUE(changed) << FieldOf(field).name;
    changed = false;
    one.*field = "7";
    NormalizeForOutput(one, changed);
    EXPECT_EQ(one.*field, "7") << FieldOf(field).name;
    EXPECT_FALSE(changed) << FieldOf(field).name;
  }
}

TEST_F(NormalizeForOutputTest, LeavesEveryOtherTextEmpty) {
  const std::vector<std::string_view> repaired = {"textThumbnailsImageWidth",
                                                  "textThumbnailsImageHeight",
                                                  "textThumbnailsTableRows",
                                                  "textThumbnailsTableColumns",
                                                  "textThumbnailsTableCellSpacing",
                                                  "textThumbnailsTableCellPadding",
                                                  "textThumbnailsTableBorder",
                                                  "textGallerySlideShowDelay",
                                                  "textGallerySlideShowAutoStartDelay",
                                                  "textThumbnailFrameName",
                                                  "comboImageFrameName",
                                                  "textImageWrapperImageWidth",
                                                  "textImageWrapperImageHeight",
                                                  "textPageLinksThumbnailMaxDirectLinks"};
  for (const ProjectField& field : ProjectFields()) {
    if (const auto* member = std::get_if<std::string GalleryProject::*>(&field.member)) (project.**member).clear();
  }
  NormalizeForOutput(project, modified);
  for (const ProjectField& field : ProjectFields()) {
    const auto* member = std::get_if<std::string GalleryProject::*>(&field.member);
    if (member == nullptr) continue;
    EXPECT_EQ((project.**member).empty(), std::ranges::count(repaired, field.name) == 0) << field.name;
  }
}

TEST_F(NormalizeForOutputTest, MakesTheTwoFrameNamesDifferent) {
  struct Case {
    const char* thumbnail;
    const char* image;
    const char* thumbnailAfter;
    const char* imageAfter;
  };
  const Case cases[] = {{"", "", "thumbnail_frame", "image_frame"},
                        {"", "thumbnail_frame", "thumbnail_frame_2", "thumbnail_frame"},
                        {"image_frame", "", "image_frame", "image_frame_2"},
                        {"", "image_frame", "thumbnail_frame", "image_frame"},
                        {"thumbnail_frame", "", "thumbnail_frame", "image_frame"},
                        {"same", "same", "same", "same"}};
  for (const auto& [thumbnail, image, thumbnailAfter, imageAfter] : cases) {
    project.textThumbnailFrameName = thumbnail;
    project.comboImageFrameName = image;
    NormalizeForOutput(project, modified);
    EXPECT_EQ(project.textThumbnailFrameName, thumbnailAfter) << thumbnail << "/" << image;
    EXPECT_EQ(project.comboImageFrameName, imageAfter) << thumbnail << "/" << image;
  }
}

TEST_F(NormalizeForOutputTest, GivesNextAndPreviousTheirGraphicAsDisabledGraphicWithoutMarkingTheProject) {
  using Link = LinkSettings GalleryProject::*;
  const Link filled[] = {&GalleryProject::ImageNextLink, &GalleryProject::ImagePreviousLink,
                         &GalleryProject::ThumbnailNextLink, &GalleryProject::ThumbnailPreviousLink};
  const Link left[] = {&GalleryProject::ImageFirstLink, &GalleryProject::ImageLastLink, &GalleryProject::ImageIndexLink,
                       &GalleryProject::ThumbnailFirstLink, &GalleryProject::ThumbnailLastLink};
  for (const Link link : filled) project.*link = {"", "on.gif", ""};
  for (const Link link : left) project.*link = {"", "on.gif", ""};
  NormalizeForOutput(project, modified);
  for (const Link link : filled) EXPECT_EQ((project.*link).textLinkGraphicDisabled, "on.gif") << FieldOf(link).name;
  for (const Link link : left) EXPECT_EQ((project.*link).textLinkGraphicDisabled, "") << FieldOf(link).name;
  EXPECT_FALSE(modified);
  for (const Link link : filled) project.*link = {"", "on.gif", "off.gif"};
  NormalizeForOutput(project, modified);
  for (const Link link : filled) EXPECT_EQ((project.*link).textLinkGraphicDisabled, "off.gif") << FieldOf(link).name;
}

TEST_F(NormalizeForOutputTest, NeverClearsTheModifiedMark) {
  modified = true;
  NormalizeForOutput(project, modified);
  EXPECT_TRUE(modified);
}

}  // namespace
}  // namespace vantorium::core
