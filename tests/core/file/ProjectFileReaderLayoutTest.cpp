#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileReaderLayoutTest : public ::testing::Test, public ProjectReading {
 public:
  bool ReadLayout(const std::string& attributes, const std::string& children = "") {
    return Read(ProjectFileParts{.layout = "<LAYOUT " + attributes + ">" + children + "</LAYOUT>"});
  }
  bool ReadSlideShow(const std::string& attributes) {
    // Adds wrapper pages, because a project without them cannot be a slide show.
    return Read(ProjectFileParts{.layout = "<LAYOUT TYPE='singleframe'><SLIDESHOW " + attributes + "/></LAYOUT>",
                                 .imagePage = "<IMAGEPAGE><PAGELINKS/></IMAGEPAGE>"});
  }
};

}  // namespace

TEST_F(ProjectFileReaderLayoutTest, TheTypeIsReadInAnyCase) {
  const std::pair<std::string, int> cases[] = {{"singleframe", 0},
                                               {"THUMBSLEFT", 1},
                                               {"thumbsRight", 2},
                                               {"thumbstop", 3},
                                               {"thumbsbottom", 4},
                                               {"unknown", 0},
                                               {"", 0}};
  for (const auto& [type, index] : cases) {
    ASSERT_TRUE(ReadLayout("TYPE='" + type + "'")) << type;
    EXPECT_EQ(Settings().comboGalleryLayoutType, index) << type;
  }
}

TEST_F(ProjectFileReaderLayoutTest, AbsentFrameNamesOfASingleFrameGetItsDefaults) {
  ASSERT_TRUE(ReadLayout("TYPE='SingleFrame'"));
  EXPECT_EQ(Settings().comboImageFrameName, "_self");
  EXPECT_EQ(Settings().textThumbnailFrameName, "thumb_frame");
  ASSERT_TRUE(ReadLayout("TYPE='singleframe' IMAGEFRAMENAME='thumb_frame'"));
  EXPECT_EQ(Settings().comboImageFrameName, "thumb_frame");
  EXPECT_EQ(Settings().textThumbnailFrameName, "thumb_frame_2");
}

TEST_F(ProjectFileReaderLayoutTest, AbsentFrameNamesOfTwoFramesGetTheDefaultsOfTheLayout) {
  for (const char* type : {"thumbsleft", "thumbsbottom"}) {
    ASSERT_TRUE(ReadLayout("TYPE='" + std::string(type) + "'"));
    EXPECT_EQ(Settings().comboImageFrameName, "image_frame");
    EXPECT_EQ(Settings().textThumbnailFrameName, "thumb_frame");
  }
}

TEST_F(ProjectFileReaderLayoutTest, AnUnknownTypeLeavesTheDefaultFrameNames) {
  ASSERT_TRUE(ReadLayout("TYPE='x'"));
  EXPECT_EQ(Settings().comboImageFrameName, "_self");
  EXPECT_EQ(Settings().textThumbnailFrameName, "thumb_frame");
}

TEST_F(ProjectFileReaderLayoutTest, FrameNamesAreReadUnchangedEvenIfEmpty) {
  ASSERT_TRUE(ReadLayout("TYPE='thumbsleft' IMAGEFRAMENAME='_top' THUMBFRAMENAME=''"));
  EXPECT_EQ(Settings().comboImageFrameName, "_top");
  EXPECT_EQ(Settings().textThumbnailFrameName, "");
}

TEST_F(ProjectFileReaderLayoutTest, ASingleFrameReadAfterTwoFramesHasItsDefaultName) {
  ASSERT_TRUE(ReadLayout("TYPE='thumbsleft' IMAGEFRAMENAME='mine'"));
  ASSERT_TRUE(ReadLayout("TYPE='singleframe'"));
  EXPECT_EQ(Settings().comboImageFrameName, "_self");
}

TEST_F(ProjectFileReaderLayoutTest, TheFrameSizeIsInPixelsOrPercentAndWithinItsBounds) {
  struct Case {
    std::string size;
    std::string text;
    int percent;
    int stored;
  };
  const Case cases[] = {{"300", "300", 0, 300}, {"30%", "30", 1, 30}, {"150%", "99", 1, 99}, {"0", "1", 0, 1},
                        {"-5%", "1", 1, 1},     {"%", "", 1, 99},     {"", "", 0, 200}};
  for (const Case& row : cases) {
    ASSERT_TRUE(ReadLayout("TYPE='singleframe' FRAMESIZE='" + row.size + "'")) << row.size;
    EXPECT_EQ(Settings().textGalleryFrameSize, row.text) << row.size;
    EXPECT_EQ(Settings().checkGalleryFrameSizeInPercent, row.percent) << row.size;
    EXPECT_EQ(Settings().ThumbnailFrameSize, row.stored) << row.size;
  }
}

TEST_F(ProjectFileReaderLayoutTest, AnAbsentFrameSizeGetsTheDefault) {
  ASSERT_TRUE(ReadLayout("TYPE='singleframe'"));
  EXPECT_EQ(Settings().textGalleryFrameSize, "200");
  EXPECT_EQ(Settings().checkGalleryFrameSizeInPercent, 0);
}

TEST_F(ProjectFileReaderLayoutTest, AFrameSizeThatIsNotANumberFails) {
  for (const std::string size : {"wide", "x%"}) {
    EXPECT_FALSE(ReadLayout("TYPE='singleframe' FRAMESIZE='" + size + "'")) << size;
    EXPECT_EQ(Box(), "Vantorium: Type mismatch") << size;
  }
}

TEST_F(ProjectFileReaderLayoutTest, AFrameSizeBeyondTheMaximumBecomesTheMaximum) {
  const std::pair<std::string, std::int32_t> cases[] = {
      {"32768", 32768}, {"99999", 99999}, {"100000", 99999}, {"1e300", 99999}, {"32768%", 99}};
  for (const auto& [size, stored] : cases) {
    ASSERT_TRUE(ReadLayout("TYPE='thumbsleft' FRAMESIZE='" + size + "'")) << size;
    EXPECT_EQ(Settings().textGalleryFrameSize, std::to_string(stored)) << size;
    EXPECT_EQ(Settings().ThumbnailFrameSize, stored) << size;
  }
}

TEST_F(ProjectFileReaderLayoutTest, FlagsAreOnOnlyForTheNumberOne) {
  const std::pair<std::string, int> cases[] = {{"1", 1}, {"1.0", 1}, {" 1 ", 1}, {"0", 0},
                                               {"2", 0}, {"-1", 0},  {"yes", 0}, {"", 0}};
  for (const auto& [value, expected] : cases) {
    ASSERT_TRUE(ReadLayout("TYPE='thumbsleft' RESIZABLE='" + value + "' BORDERS='" + value + "'")) << value;
    EXPECT_EQ(Settings().checkGalleryFramesResizable, expected) << value;
    EXPECT_EQ(Settings().checkGalleryFramesDisplayBorders, expected) << value;
  }
}

TEST_F(ProjectFileReaderLayoutTest, ASlideShowIsReadWithASingleFrame) {
  ASSERT_TRUE(
      ReadSlideShow("FIRSTSLIDE='FIRSTTHUMBPAGE' NEXTSLIDE='firstThumbPage' STARTOVER='stop' AUTOSTART='1' "
                    "AUTOSTARTDELAY='3.5' DELAY=' 8 '"));
  EXPECT_EQ(Settings().checkGallerySlideShow, 1);
  EXPECT_EQ(Settings().comboGallerySlideShowBeginWith, 0);
  EXPECT_EQ(Settings().comboGallerySlideShowActionAfterImage, 2);
  EXPECT_EQ(Settings().comboGallerySlideShowStartOverWith, 2);
  EXPECT_EQ(Settings().checkGallerySlideShowAutoStart, 1);
  EXPECT_EQ(Settings().textGallerySlideShowAutoStartDelay, "4");
  EXPECT_EQ(Settings().textGallerySlideShowDelay, "8");
}

TEST_F(ProjectFileReaderLayoutTest, AnEmptySlideShowHasNoAutoStartAndNoDelays) {
  ASSERT_TRUE(ReadSlideShow("FIRSTSLIDE='x' NEXTSLIDE='' STARTOVER='x'"));
  EXPECT_EQ(Settings().checkGallerySlideShow, 1);
  EXPECT_EQ(Settings().comboGallerySlideShowBeginWith, 1);
  EXPECT_EQ(Settings().comboGallerySlideShowActionAfterImage, 0);
  EXPECT_EQ(Settings().comboGallerySlideShowStartOverWith, 1);
  EXPECT_EQ(Settings().checkGallerySlideShowAutoStart, 0);
  EXPECT_EQ(Settings().textGallerySlideShowAutoStartDelay, "0");
  EXPECT_EQ(Settings().textGallerySlideShowDelay, "0");
}

TEST_F(ProjectFileReaderLayoutTest, AutoStartThatIsNotANumberIsOff) {
  for (const char* value : {"yes", "", "2", "-1", "0"}) {
    ASSERT_TRUE(ReadSlideShow("AUTOSTART='" + std::string(value) + "'")) << value;
    EXPECT_EQ(Settings().checkGallerySlideShowAutoStart, 0) << value;
  }
}

TEST_F(ProjectFileReaderLayoutTest, ADelayThatIsNotANumberFails) {
  EXPECT_FALSE(ReadSlideShow("DELAY=''"));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
  EXPECT_FALSE(ReadSlideShow("AUTOSTARTDELAY='soon'"));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
}

TEST_F(ProjectFileReaderLayoutTest, ADelayBeyondTheMaximumBecomesTheMaximum) {
  const std::pair<std::string, std::string> cases[] = {
      {"32768", "32768"}, {"999999", "999999"}, {"1000000", "999999"}, {"1e300", "999999"}, {"-5", "-5"}};
  for (const auto& [delay, read] : cases) {
    ASSERT_TRUE(ReadSlideShow("DELAY='" + delay + "' AUTOSTARTDELAY='" + delay + "'")) << delay;
    EXPECT_EQ(Settings().textGallerySlideShowDelay, read) << delay;
    EXPECT_EQ(Settings().textGallerySlideShowAutoStartDelay, read) << delay;
  }
}

TEST_F(ProjectFileReaderLayoutTest, ASlideShowInTwoFramesIsIgnored) {
  for (const char* type : {"thumbsleft", "unknown"}) {
    ASSERT_TRUE(ReadLayout("TYPE='" + std::string(type) + "'", "<SLIDESHOW DELAY='no number'/>")) << type;
    EXPECT_EQ(Settings().checkGallerySlideShow, 0) << type;
    EXPECT_EQ(Settings().textGallerySlideShowDelay, "5") << type;
  }
}

TEST_F(ProjectFileReaderLayoutTest, ASlideShowWithoutWrapperPagesIsIgnored) {
  ASSERT_TRUE(ReadLayout("TYPE='singleframe'", "<SLIDESHOW/>"));
  EXPECT_EQ(Settings().checkImageWrapperUse, 0);
  EXPECT_EQ(Settings().checkGallerySlideShow, 0);
}
