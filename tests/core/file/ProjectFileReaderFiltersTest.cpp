#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileReaderFiltersTest : public ::testing::Test, public ProjectReading {
 public:
  bool ReadFilters(const std::string& filters) {
    return Read(ProjectFileParts{.lists = "<IMAGES><MODIFY>" + filters + "</MODIFY></IMAGES>"});
  }
  [[nodiscard]] const image::ImageFilterSettings& Filters() const { return Settings().ImageFilters; }
  [[nodiscard]] const image::WatermarkSettings& Watermark() const { return Settings().ImageWatermark; }
};

}  // namespace

TEST_F(ProjectFileReaderFiltersTest, EachFilterSetsItsSwitchAndItsValues) {
  ASSERT_TRUE(
      ReadFilters("<FILTER TYPE='Grayscale'/><FILTER TYPE='noise' RANDOM='1' VALUE='11'/>"
                  "<FILTER TYPE='BRIGHTNESS' VALUE='-22'/><FILTER TYPE='fade' VALUE='33'/>"
                  "<FILTER TYPE='quality' VALUE='44'/>"));
  EXPECT_EQ(Filters().checkGrayscale, 1);
  EXPECT_EQ(Filters().checkNoise, 1);
  EXPECT_EQ(Filters().checkNoiseRandom, 1);
  EXPECT_EQ(Filters().sliderNoise, 11);
  EXPECT_EQ(Filters().checkBrightness, 1);
  EXPECT_EQ(Filters().sliderBrightness, -22);
  EXPECT_EQ(Filters().checkFade, 1);
  EXPECT_EQ(Filters().sliderFade, 33);
  EXPECT_EQ(Filters().sliderQuality, 44);
  EXPECT_EQ(Watermark().checkUseWatermark, 0);
}

TEST_F(ProjectFileReaderFiltersTest, AQualityAloneTurnsNoFilterOn) {
  ASSERT_TRUE(ReadFilters("<FILTER TYPE='quality' VALUE='44'/>"));
  EXPECT_FALSE(Filters().AnyFilter());
  EXPECT_EQ(Filters().sliderQuality, 44);
}

TEST_F(ProjectFileReaderFiltersTest, AbsentValuesGetTheDefaults) {
  ASSERT_TRUE(ReadFilters("<FILTER TYPE='noise'/><FILTER TYPE='brightness'/><FILTER TYPE='fade'/>"));
  EXPECT_EQ(Filters().sliderNoise, 50);
  EXPECT_EQ(Filters().checkNoiseRandom, 0);
  EXPECT_EQ(Filters().sliderBrightness, 25);
  EXPECT_EQ(Filters().sliderFade, 192);
  EXPECT_EQ(Filters().sliderQuality, 85);
}

TEST_F(ProjectFileReaderFiltersTest, UnknownFiltersAreSkippedAndTheirChildrenAreRead) {
  ASSERT_TRUE(
      ReadFilters("<FILTER/><FILTER TYPE=''/><FILTER TYPE='blur' VALUE='x'/><MORE><FILTER TYPE='fade'/></MORE>"));
  EXPECT_EQ(Filters().checkFade, 1);
  EXPECT_EQ(Filters().checkGrayscale, 0);
}

TEST_F(ProjectFileReaderFiltersTest, TheWatermarkIsReadWithItsFont) {
  ASSERT_TRUE(ReadFilters(
      "<FILTER TYPE='watermark' CAPTION='mine' ALPHA='12' AUTOPOSITION='TOPLEFT'><FONT FACE='Serif' HEIGHT='20' "
      "WEIGHT='400' ITALIC='1' UNDERLINE='-1' STRIKEOUT='0' COLOR='FF'/></FILTER>"));
  EXPECT_EQ(Watermark().checkUseWatermark, 1);
  EXPECT_EQ(Watermark().textWatermark, "mine");
  EXPECT_EQ(Watermark().sliderAlpha, 12);
  EXPECT_EQ(Watermark().comboTextPlacement, 0);
  EXPECT_EQ(Watermark().FontName, "Serif");
  EXPECT_EQ(Watermark().FontSize, 20);
  EXPECT_EQ(Watermark().FontWeight, 400);
  EXPECT_TRUE(Watermark().FontItalic);
  EXPECT_TRUE(Watermark().FontUnderline);
  EXPECT_FALSE(Watermark().FontStrikeout);
  EXPECT_EQ(Watermark().Color, 0x0000FFU);
}

TEST_F(ProjectFileReaderFiltersTest, StrikeoutIsReadIntoItsField) {
  ASSERT_TRUE(ReadFilters("<FILTER TYPE='watermark'><FONT STRIKEOUT='1'/></FILTER>"));
  EXPECT_TRUE(Watermark().FontStrikeout);
  EXPECT_FALSE(Watermark().FontUnderline);
}

TEST_F(ProjectFileReaderFiltersTest, AbsentAndUnknownWatermarkValuesGetTheDefaults) {
  ASSERT_TRUE(ReadFilters("<FILTER TYPE='WATERMARK' AUTOPOSITION='somewhere'/>"));
  EXPECT_EQ(Watermark().textWatermark, "SAMPLE");
  EXPECT_EQ(Watermark().sliderAlpha, 65);
  EXPECT_EQ(Watermark().comboTextPlacement, 10);
  EXPECT_EQ(Watermark().FontName, "Arial");
  EXPECT_EQ(Watermark().Color, 0xFFFFFFU);
}

TEST_F(ProjectFileReaderFiltersTest, AnEmptyCaptionIsAValue) {
  ASSERT_TRUE(ReadFilters("<FILTER TYPE='watermark' CAPTION=''/>"));
  EXPECT_EQ(Watermark().textWatermark, "");
}

TEST_F(ProjectFileReaderFiltersTest, ThumbnailsHaveSeparateFilters) {
  ASSERT_TRUE(Read(ProjectFileParts{.lists = "<THUMBNAILS><MODIFY><FILTER TYPE='fade' VALUE='1'/><FILTER "
                                             "TYPE='watermark' CAPTION='t'/></MODIFY></THUMBNAILS>"}));
  EXPECT_EQ(Settings().ThumbnailFilters.checkFade, 1);
  EXPECT_EQ(Settings().ThumbnailWatermark.checkUseWatermark, 1);
  EXPECT_EQ(Settings().ThumbnailWatermark.textWatermark, "t");
  EXPECT_EQ(Filters().checkFade, 0);
  EXPECT_EQ(Watermark().checkUseWatermark, 0);
}

TEST_F(ProjectFileReaderFiltersTest, AValueThatIsNotANumberFailsAndEarlierValuesStay) {
  const std::pair<std::string, std::string> cases[] = {
      {"<FILTER TYPE='noise' RANDOM='x'/>", "Type mismatch"},
      {"<FILTER TYPE='brightness' VALUE='bright'/>", "Type mismatch"},
      {"<FILTER TYPE='fade' VALUE=''/>", "Type mismatch"},
      {"<FILTER TYPE='quality' VALUE='40000'/>", "Overflow"},
      {"<FILTER TYPE='watermark' ALPHA='-99999'/>", "Overflow"},
      {"<FILTER TYPE='watermark'><FONT HEIGHT='x'/></FILTER>", "Type mismatch"},
      {"<FILTER TYPE='watermark'><FONT COLOR='red'/></FILTER>", "Type mismatch"},
      {"<FILTER TYPE='watermark'><FONT COLOR='1FFFFFFFF'/></FILTER>", "Overflow"},
  };
  for (const auto& [filter, failure] : cases) {
    EXPECT_FALSE(ReadFilters("<FILTER TYPE='grayscale'/>" + filter)) << filter;
    EXPECT_EQ(Box(), "Vantorium: " + failure) << filter;
    EXPECT_EQ(Filters().checkGrayscale, 1) << filter;
  }
  EXPECT_FALSE(ReadFilters("<FILTER TYPE='watermark' CAPTION='kept' ALPHA='x'/>"));
  EXPECT_EQ(Watermark().checkUseWatermark, 1);
  EXPECT_EQ(Watermark().textWatermark, "kept");
}
