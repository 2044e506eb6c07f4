#include "core/file/ProjectFileWriter.h"
#include "tests/fakes/ProjectReading.h"

#include <algorithm>
#include <functional>
#include <set>

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

using Names = std::set<std::string>;

template <typename Record, typename Fields>
void ChangeRecord(Record& record, const Fields& fields) {
  for (const auto& field : fields) {
    std::visit(
        [&](auto member) {
          auto& value = record.*member;
          using Value = std::decay_t<decltype(value)>;
          if constexpr (std::is_same_v<Value, std::string>) {
            value = "another " + std::string(field.name);
          } else if constexpr (std::is_same_v<Value, bool>) {
            value = !value;
          } else {
            value = static_cast<Value>(field.name.starts_with("check") ? 1 : value == 7 ? 8 : 7);
          }
        },
        field.member);
  }
}

/// Gives a field a value that a new project does not have.
void Change(GalleryProject& project, const ProjectField& field) {
  std::visit(
      [&](auto member) {
        auto& value = project.*member;
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, image::ImageFilterSettings>) {
          ChangeRecord(value, FilterFields());
        } else if constexpr (std::is_same_v<Value, image::WatermarkSettings>) {
          ChangeRecord(value, WatermarkFields());
        } else if constexpr (std::is_same_v<Value, LinkSettings>) {
          ChangeRecord(value, LinkFields());
        } else if constexpr (std::is_same_v<Value, std::string>) {
          value = field.kind == FieldKind::Digits ? "17" : "<another>\r\n]]& " + std::string(field.name);
        } else if constexpr (std::is_same_v<Value, Color>) {
          value = 0x123456;
        } else if (field.kind == FieldKind::Flag) {
          value = static_cast<Flag>(1 - value);
        } else {
          value = static_cast<Choice>(value == 0 ? 1 : 0);
        }
      },
      field.member);
}

class ProjectFileRoundTrip : public ::testing::Test, public ProjectReading {
 public:
  /// Changes all fields of a project, applies `edit`, then writes and reads it. Returns the names of the settings that
  /// were lost, and adds to `survived` those that were changed and read back.
  Names Lost(const std::function<void(GalleryProject&)>& edit) {
    GalleryProject& project = harness.project.settings;
    project = {};
    const auto untouched = SettingTexts(project);
    for (const ProjectField& field : ProjectFields()) Change(project, field);
    edit(project);
    const auto written = SettingTexts(project);
    EXPECT_TRUE(Read(ProjectFileText(harness.project, harness.events))) << Box();
    const auto read = SettingTexts(Settings());
    Names lost;
    for (const auto& [name, value] : written) {
      if (read.at(name) != value) {
        lost.insert(name);
      } else if (untouched.at(name) != value) {
        survived.insert(name);
      }
    }
    return lost;
  }

  Names survived;
};

// Settings that no file contains, and settings that depend on them.
const Names kNeverSaved = {"comboImagesSortingOrder",
                           "comboGalleryFrameSizingPriority",
                           "textThumbnailImageSettingsFilePrefix",
                           "ThumbnailFrameSize",
                           "ImageFrameSize",
                           "textThumbnailsTableBackdrop",
                           "ImageIndexLink.textLinkGraphicDisabled"};

Names With(Names more) {
  more.insert(kNeverSaved.begin(), kNeverSaved.end());
  return more;
}

void SingleFrameSlideShow(GalleryProject& project) {
  project.comboGalleryLayoutType = 0;
  project.checkImageWrapperUse = 1;
  project.checkGallerySlideShowAutoStart = 1;
  project.comboCaptionsImagesRegularPlacement = 1;
  project.comboCaptionsThumbnailsRegularPlacement = 1;
  project.checkImageWrapperImageKeepSize = 0;
  project.checkThumbnailsImageKeepAspectRatio = 1;
  project.checkImageWrapperImageSetWidth = 1;
  // Strikeout is read back as underline, so both change.
}

}  // namespace

TEST_F(ProjectFileRoundTrip, EverySettingOfTheFormatIsReadBack) {
  EXPECT_EQ(Lost(SingleFrameSlideShow), With({"textThumbnailsImageHeight"}));
  EXPECT_EQ(
      Lost([](GalleryProject& project) {
        SingleFrameSlideShow(project);
        project.comboGalleryLayoutType = 3;
        project.checkGallerySlideShow = 0;
        project.checkThumbnailsImageKeepAspectRatio = 0;
      }),
      With({"comboGallerySlideShowActionAfterImage", "comboGallerySlideShowBeginWith",
            "comboGallerySlideShowStartOverWith", "textGallerySlideShowAutoStartDelay", "textGallerySlideShowDelay"}));
  Lost([](GalleryProject& project) {
    SingleFrameSlideShow(project);
    project.checkGallerySlideShowAutoStart = 0;
  });
  Lost([](GalleryProject& project) { project.checkGallerySlideShow = 0; });  // no wrapper pages; images keep their size
  Names neverBack;
  for (const auto& [name, value] : SettingTexts({})) {
    if (!survived.contains(name)) neverBack.insert(name);
  }
  EXPECT_EQ(neverBack, kNeverSaved);
}

TEST_F(ProjectFileRoundTrip, ACaptionAboveIsReadBackAsBelow) {
  GalleryProject& project = harness.project.settings;
  project.checkCaptionsImagesRegular = project.checkCaptionsThumbnailsRegular = 1;
  project.comboCaptionsImagesRegularPlacement = project.comboCaptionsThumbnailsRegularPlacement = 2;
  project.comboCaptionsImagesRegularAlignment = 0;
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.comboCaptionsImagesRegularPlacement, 3);
  EXPECT_EQ(project.comboCaptionsThumbnailsRegularPlacement, 3);
  EXPECT_EQ(project.comboCaptionsImagesRegularAlignment, 0);
}

TEST_F(ProjectFileRoundTrip, StrikeoutIsReadBackAsUnderline) {
  image::WatermarkSettings& watermark = harness.project.settings.ImageWatermark;
  watermark.checkUseWatermark = 1;
  for (const bool underline : {false, true}) {
    watermark.FontUnderline = underline;
    watermark.FontStrikeout = !underline;
    ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
    EXPECT_EQ(watermark.FontUnderline, underline);
    EXPECT_EQ(watermark.FontStrikeout, underline);
  }
}

TEST_F(ProjectFileRoundTrip, AThumbnailWatermarkAloneIsLostAndAnImageWatermarkIsCopiedToThumbnails) {
  GalleryProject& project = harness.project.settings;
  project.ThumbnailWatermark.checkUseWatermark = 1;
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.ThumbnailWatermark.checkUseWatermark, 0);
  project.ImageWatermark.checkUseWatermark = 1;
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.ImageWatermark.checkUseWatermark, 1);
  EXPECT_EQ(project.ThumbnailWatermark.checkUseWatermark, 1);
}

TEST_F(ProjectFileRoundTrip, AQualityAloneIsLost) {
  GalleryProject& project = harness.project.settings;
  project.ImageFilters.sliderQuality = 10;
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.ImageFilters.sliderQuality, 85);
}

TEST_F(ProjectFileRoundTrip, TheTableBackdropIsLost) {
  GalleryProject& project = harness.project.settings;
  project.textThumbnailsTableBackdrop = "b.gif";
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.textThumbnailsTableBackdrop, "");
}

TEST_F(ProjectFileRoundTrip, WithoutWrapperPagesTheirLinksGetTheDefaults) {
  GalleryProject& project = harness.project.settings;
  project.checkImageWrapperUse = 0;
  project.ImageNextLink.textLinkLabel = "mine";
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(project.checkImageWrapperUse, 0);
  EXPECT_EQ(project.ImageNextLink.textLinkLabel, "NEXT");
}

TEST_F(ProjectFileRoundTrip, ImagesAreReadBackInOrder) {
  harness.AddImage("b.jpg", "first\r\n\"line\"", "");
  harness.AddImage("a & <c>.jpg", "", "thumb");
  harness.AddImage("\xC3\xA4 \xF0\x9F\x98\x80.jpg", "]]>", "]]>");
  const auto texts = [this] {
    std::vector<std::string> rows;
    for (std::size_t position = 1; position <= harness.project.images.Count(); ++position) {
      const ImageEntry& entry = harness.project.images.Entry(position);
      std::string source = entry.SourcePath;
      std::ranges::replace(source, '/', '\\');  // the file has slashes
      rows.push_back(entry.ImageName + "|" + source + "|" + entry.ImageDescription + "|" + entry.ThumbnailDescription);
    }
    return rows;
  };
  const auto before = texts();
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events)));
  EXPECT_EQ(texts(), before);
}

TEST_F(ProjectFileRoundTrip, AListOfMoreThan65535ImagesIsReadBack) {
  const std::string source = harness.File("photo.jpg");
  constexpr std::size_t kImages = 40'000;
  for (std::size_t position = 1; position <= kImages; ++position) {
    harness.project.images.Insert(position, {"photo", source, "", "", "", "t"});
  }
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events))) << Box();
  ASSERT_EQ(harness.project.images.Count(), kImages);
  EXPECT_EQ(harness.project.images.Entry(kImages).ImageName, "photo_39999");
  EXPECT_EQ(harness.project.images.Entry(kImages).ThumbnailDescription, "t");
}

TEST_F(ProjectFileRoundTrip, TheLargestValueOfEachFieldIsReadBack) {
  GalleryProject& project = harness.project.settings;
  project.checkGallerySlideShow = project.checkGallerySlideShowAutoStart = 1;
  project.comboGallerySlideShowBeginWith = 0;
  project.checkPageLinksThumbnailDirectLinks = 1;
  const auto isBounded = [](const ProjectField& field) { return field.range && field.range->upperBound; };
  for (const ProjectField& field : ProjectFields()) {
    if (!isBounded(field)) continue;
    project.*std::get<Digits GalleryProject::*>(field.member) = std::to_string(*field.range->upperBound);
  }
  ASSERT_TRUE(Read(ProjectFileText(harness.project, harness.events))) << Box();
  for (const ProjectField& field : ProjectFields()) {
    if (!isBounded(field)) continue;
    EXPECT_EQ(project.*std::get<Digits GalleryProject::*>(field.member), std::to_string(*field.range->upperBound))
        << field.name;
  }
  EXPECT_EQ(project.ThumbnailFrameSize, 99999);
}
