#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileReaderPagesTest : public ::testing::Test, public ProjectReading {
 public:
  bool ReadArrangement(const std::string& attributes) {
    return Read(ProjectFileParts{.thumbnailPage = "<ARRANGEMENT " + attributes + "/><PAGELINKS/>"});
  }
  bool ReadImagePage(const std::string& attributes, const std::string& children = "<PAGELINKS/>") {
    return Read(ProjectFileParts{.imagePage = "<IMAGEPAGE " + attributes + ">" + children + "</IMAGEPAGE>"});
  }
};

}  // namespace

TEST_F(ProjectFileReaderPagesTest, AnEmptyThumbnailPageHasNoTextsAndNoBackdrop) {
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(Settings().textThumbnailPageSettingsFilePrefix, "thumbpage_");
  EXPECT_EQ(Settings().comboThumbnailPageSettingsFileExtension, ".htm");
  EXPECT_EQ(Settings().textThumbnailsPageBackdrop, "");
  EXPECT_EQ(Settings().ThumbnailPageBodyHeader, "");
  EXPECT_EQ(Settings().ThumbnailPageBodyFooter, "");
  EXPECT_EQ(Settings().checkThumbnailsPageSetColors, 0);
}

TEST_F(ProjectFileReaderPagesTest, TheThumbnailPageIsRead) {
  ASSERT_TRUE(Read(ProjectFileParts{
      .thumbnailPageAttributes = "PREFIX='' EXTENSION='.html' BACKGROUND='C:\\b.gif'",
      .thumbnailPage = "<HEAD>1</HEAD><HEADER>2\n</HEADER><FOOTER>3</FOOTER><ARRANGEMENT/>"
                       "<THUMBNAILHEADER>4</THUMBNAILHEADER><THUMBNAILFOOTER>5</THUMBNAILFOOTER><PAGELINKS/>"}));
  EXPECT_EQ(Settings().textThumbnailPageSettingsFilePrefix, "");
  EXPECT_EQ(Settings().comboThumbnailPageSettingsFileExtension, ".html");
  EXPECT_EQ(Settings().textThumbnailsPageBackdrop, "C:\\b.gif");
  EXPECT_EQ(Settings().ThumbnailPageHeadCode, "1");
  EXPECT_EQ(Settings().ThumbnailPageBodyHeader, "2\r\n");
  EXPECT_EQ(Settings().ThumbnailPageBodyFooter, "3");
  EXPECT_EQ(Settings().ThumbnailHeader, "4");
  EXPECT_EQ(Settings().ThumbnailFooter, "5");
}

TEST_F(ProjectFileReaderPagesTest, OneColorTurnsTheColorsOn) {
  const std::pair<std::string, Color GalleryProject::*> cases[] = {{"BGCOLOR", &GalleryProject::ThumbnailPageBgColor},
                                                                   {"TEXT", &GalleryProject::ThumbnailPageTextColor},
                                                                   {"LINK", &GalleryProject::ThumbnailPageLinkColor},
                                                                   {"ALINK", &GalleryProject::ThumbnailPageALinkColor},
                                                                   {"VLINK", &GalleryProject::ThumbnailPageVLinkColor}};
  for (const auto& [attribute, color] : cases) {
    ASSERT_TRUE(Read(ProjectFileParts{.thumbnailPageAttributes = attribute + "='a0b0c'"})) << attribute;
    EXPECT_EQ(Settings().*color, 0x0A0B0CU) << attribute;
    EXPECT_EQ(Settings().checkThumbnailsPageSetColors, 1) << attribute;
    EXPECT_EQ(Settings().checkImageWrapperSetColors, 0) << attribute;
  }
}

TEST_F(ProjectFileReaderPagesTest, AColorOfTwoDigitsIsRed) {
  ASSERT_TRUE(Read(ProjectFileParts{.thumbnailPageAttributes = "BGCOLOR='FF'"}));
  EXPECT_EQ(Settings().ThumbnailPageBgColor, 0x0000FFU);
}

TEST_F(ProjectFileReaderPagesTest, AColorThatIsNotANumberFails) {
  for (const char* color : {"red", "", "#FF0000", "FFG"}) {
    EXPECT_FALSE(Read(ProjectFileParts{.thumbnailPageAttributes = "TEXT='" + std::string(color) + "'"})) << color;
    EXPECT_EQ(Box(), "Vantorium: Type mismatch") << color;
    EXPECT_EQ(Settings().checkThumbnailsPageSetColors, 0) << color;
  }
}

TEST_F(ProjectFileReaderPagesTest, TheArrangementIsRead) {
  ASSERT_TRUE(
      ReadArrangement("ROWS='3' COLS=' 4.5 ' ALIGN='fittopage' BORDER='1' CELLSPACING='6' CELLPADDING='7' "
                      "BACKDROP='b.gif' BGCOLOR='0000FF'"));
  EXPECT_EQ(Settings().textThumbnailsTableRows, "3");
  EXPECT_EQ(Settings().textThumbnailsTableColumns, "4");
  EXPECT_EQ(Settings().comboThumbnailsTableAlignment, 0);
  EXPECT_EQ(Settings().textThumbnailsTableBorder, "1");
  EXPECT_EQ(Settings().textThumbnailsTableCellSpacing, "6");
  EXPECT_EQ(Settings().textThumbnailsTableCellPadding, "7");
  EXPECT_EQ(Settings().textThumbnailsTableBackdrop, "b.gif");
  EXPECT_EQ(Settings().btnThumbnailsTableBGColor, 0x0000FFU);
  EXPECT_EQ(Settings().checkThumbnailsTableUseBGColor, 1);
}

TEST_F(ProjectFileReaderPagesTest, AnEmptyArrangementHasTheDefaults) {
  ASSERT_TRUE(ReadArrangement("BACKGROUND='written.gif' ALIGN='middle'"));
  EXPECT_EQ(Settings().textThumbnailsTableRows, "5");
  EXPECT_EQ(Settings().textThumbnailsTableCellSpacing, "2");
  EXPECT_EQ(Settings().comboThumbnailsTableAlignment, 2);
  EXPECT_EQ(Settings().textThumbnailsTableBackdrop, "");
  EXPECT_EQ(Settings().checkThumbnailsTableUseBGColor, 0);
}

TEST_F(ProjectFileReaderPagesTest, ArrangementNumbersBelowTheMinimumBecomeTheMinimum) {
  ASSERT_TRUE(ReadArrangement("ROWS='0' COLS='-2' BORDER='-1' CELLSPACING='-0.4'"));
  EXPECT_EQ(Settings().textThumbnailsTableRows, "0");
  EXPECT_EQ(Settings().textThumbnailsTableColumns, "0");
  EXPECT_EQ(Settings().textThumbnailsTableBorder, "0");
  EXPECT_EQ(Settings().textThumbnailsTableCellSpacing, "0");
}

TEST_F(ProjectFileReaderPagesTest, ArrangementValuesThatAreNotNumbersFail) {
  for (const char* name : {"ROWS", "COLS", "BORDER", "CELLSPACING", "CELLPADDING"}) {
    EXPECT_FALSE(ReadArrangement(name + std::string("='x5'"))) << name;
    EXPECT_EQ(Box(), "Vantorium: Type mismatch") << name;
  }
}

TEST_F(ProjectFileReaderPagesTest, ArrangementNumbersBeyondTheMaximumBecomeTheMaximum) {
  const std::pair<std::string, std::string> cases[] = {{"32768", "32768"}, {"99999", "99999"}, {"100000", "99999"},
                                                       {"9e18", "99999"},  {"1e300", "99999"}, {"-32769", "0"},
                                                       {"-1e300", "0"}};
  for (const auto& [number, read] : cases) {
    ASSERT_TRUE(ReadArrangement("ROWS='" + number + "' COLS='" + number + "' BORDER='" + number + "' CELLSPACING='" +
                                number + "' CELLPADDING='" + number + "'"))
        << number;
    EXPECT_EQ(Settings().textThumbnailsTableRows, read) << number;
    EXPECT_EQ(Settings().textThumbnailsTableColumns, read) << number;
    EXPECT_EQ(Settings().textThumbnailsTableBorder, read) << number;
    EXPECT_EQ(Settings().textThumbnailsTableCellSpacing, read) << number;
    EXPECT_EQ(Settings().textThumbnailsTableCellPadding, read) << number;
  }
}

TEST_F(ProjectFileReaderPagesTest, AnImagePageTurnsWrapperPagesOn) {
  ASSERT_TRUE(ReadImagePage("USE='0' PREFIX='not read'"));
  EXPECT_EQ(Settings().checkImageWrapperUse, 1);
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(Settings().checkImageWrapperUse, 0);
  EXPECT_EQ(Settings().ImagePageBodyHeader, kImagePageCentringHeader);
}

TEST_F(ProjectFileReaderPagesTest, TheImagePageIsRead) {
  ASSERT_TRUE(ReadImagePage("EXTENSION='.html' BACKGROUND='b.gif' VLINK='1'",
                            "<HEAD>1</HEAD><HEADER>2</HEADER><FOOTER>3</FOOTER><IMAGEHEADER>4</IMAGEHEADER>"
                            "<IMAGEFOOTER>5</IMAGEFOOTER><PAGELINKS/>"));
  EXPECT_EQ(Settings().comboImageWrapperSettingsFileExtension, ".html");
  EXPECT_EQ(Settings().textImageWrapperBackdrop, "b.gif");
  EXPECT_EQ(Settings().checkImageWrapperSetColors, 1);
  EXPECT_EQ(Settings().ImagePageVLinkColor, 1U);
  EXPECT_EQ(Settings().ImagePageHeadCode, "1");
  EXPECT_EQ(Settings().ImagePageBodyHeader, "2");
  EXPECT_EQ(Settings().ImagePageBodyFooter, "3");
  EXPECT_EQ(Settings().ImageHeader, "4");
  EXPECT_EQ(Settings().ImageFooter, "5");
}

TEST_F(ProjectFileReaderPagesTest, AnEmptyImagePageHasNoTexts) {
  ASSERT_TRUE(ReadImagePage(""));
  EXPECT_EQ(Settings().comboImageWrapperSettingsFileExtension, ".htm");
  EXPECT_EQ(Settings().ImagePageBodyHeader, "");
  EXPECT_EQ(Settings().ImagePageBodyFooter, "");
  EXPECT_EQ(Settings().checkImageWrapperSetColors, 0);
}
