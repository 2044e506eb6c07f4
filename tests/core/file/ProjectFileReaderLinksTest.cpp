#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileReaderLinksTest : public ::testing::Test, public ProjectReading {
 public:
  bool ReadThumbnailLinks(const std::string& attributes, const std::string& links = "") {
    return Read(
        ProjectFileParts{.thumbnailPage = "<ARRANGEMENT/><PAGELINKS " + attributes + ">" + links + "</PAGELINKS>"});
  }
  bool ReadImageLinks(const std::string& attributes, const std::string& links = "") {
    return Read(ProjectFileParts{.imagePage =
                                     "<IMAGEPAGE><PAGELINKS " + attributes + ">" + links + "</PAGELINKS></IMAGEPAGE>"});
  }
  static std::string Text(const LinkSettings& link) {
    return link.textLinkLabel + "|" + link.textLinkGraphic + "|" + link.textLinkGraphicDisabled;
  }
};

}  // namespace

TEST_F(ProjectFileReaderLinksTest, PlaceIsAWordOrAListOfWords) {
  struct Case {
    std::string place;
    int thumbnails;
    int images;
  };
  const Case cases[] = {{"PLACE='top'", 1, 1},
                        {"PLACE='BOTTOM'", 2, 2},
                        {"PLACE='top,bottom'", 3, 3},
                        {"PLACE='Bottom,Top'", 3, 3},
                        {"PLACE='left,top'", 1, 1},
                        {"PLACE='x,bottom,y'", 2, 2},
                        {"PLACE='bottom,'", 2, 2},
                        {"", 0, 0},
                        // A value that names neither place leaves the default.
                        {"PLACE=''", 1, 2},
                        {"PLACE='left'", 1, 2},
                        {"PLACE='stop'", 1, 2},
                        {"PLACE='stop, bottoms'", 1, 2},
                        {"PLACE='top ,x'", 1, 2}};
  for (const Case& row : cases) {
    ASSERT_TRUE(ReadThumbnailLinks(row.place)) << row.place;
    EXPECT_EQ(Settings().comboPageLinksThumbnailLinkPlacement, row.thumbnails) << row.place;
    ASSERT_TRUE(ReadImageLinks(row.place)) << row.place;
    EXPECT_EQ(Settings().comboPageLinksImageLinkPlacement, row.images) << row.place;
  }
}

TEST_F(ProjectFileReaderLinksTest, DirectLinksAreUnlimitedOrANumber) {
  struct Case {
    std::string direct;
    int flag;
    std::string most;
  };
  const Case cases[] = {{"", 0, "0"},
                        {"DIRECT='all'", 1, "0"},
                        {"DIRECT='All'", 1, "0"},
                        {"DIRECT='7'", 1, "7"},
                        {"DIRECT='-3'", 1, "0"},
                        {"DIRECT='2.5'", 1, "2"},
                        {"DIRECT='32768'", 1, "32768"},
                        {"DIRECT='1e9'", 1, "99999"}};
  for (const Case& row : cases) {
    ASSERT_TRUE(ReadThumbnailLinks(row.direct)) << row.direct;
    EXPECT_EQ(Settings().checkPageLinksThumbnailDirectLinks, row.flag) << row.direct;
    EXPECT_EQ(Settings().textPageLinksThumbnailMaxDirectLinks, row.most) << row.direct;
  }
  for (const char* direct : {"DIRECT=''", "DIRECT='some'"}) {
    EXPECT_FALSE(ReadThumbnailLinks(direct)) << direct;
    EXPECT_EQ(Box(), "Vantorium: Type mismatch") << direct;
    EXPECT_EQ(Settings().checkPageLinksThumbnailDirectLinks, 1) << direct;
  }
}

TEST_F(ProjectFileReaderLinksTest, EachLinkOfAThumbnailPageIsRead) {
  ASSERT_TRUE(ReadThumbnailLinks("",
                                 "<FIRST CAPTION='a' IMAGE='file://C:\\1.gif' FIRSTIMAGE='FILE://2.gif'/>"
                                 "<LAST CAPTION='b' IMAGE='3.gif' LASTIMAGE='4.gif'/>"
                                 "<PREVIOUS CAPTION='c' IMAGE='5.gif' FIRSTIMAGE='6.gif'/>"
                                 "<NEXT CAPTION='d' IMAGE='file:///a/7.gif' LASTIMAGE='8.gif'/>"));
  EXPECT_EQ(Text(Settings().ThumbnailFirstLink), "a|C:\\1.gif|2.gif");
  EXPECT_EQ(Text(Settings().ThumbnailLastLink), "b|3.gif|4.gif");
  EXPECT_EQ(Text(Settings().ThumbnailPreviousLink), "c|5.gif|6.gif");
  EXPECT_EQ(Text(Settings().ThumbnailNextLink), "d|/a/7.gif|8.gif");
}

TEST_F(ProjectFileReaderLinksTest, AbsentLinksOfAThumbnailPageAreEmptyExceptTheLabelOfNext) {
  ASSERT_TRUE(ReadThumbnailLinks(""));
  EXPECT_EQ(Text(Settings().ThumbnailFirstLink), "||");
  EXPECT_EQ(Text(Settings().ThumbnailLastLink), "||");
  EXPECT_EQ(Text(Settings().ThumbnailPreviousLink), "||");
  EXPECT_EQ(Text(Settings().ThumbnailNextLink), "NEXT||");
}

TEST_F(ProjectFileReaderLinksTest, AbsentAttributesOfALinkAreEmpty) {
  ASSERT_TRUE(ReadThumbnailLinks("", "<FIRST LASTIMAGE='x'/><NEXT/>"));
  EXPECT_EQ(Text(Settings().ThumbnailFirstLink), "||");
  EXPECT_EQ(Text(Settings().ThumbnailNextLink), "||");
}

TEST_F(ProjectFileReaderLinksTest, EachLinkOfAWrapperPageIsRead) {
  ASSERT_TRUE(ReadImageLinks("",
                             "<FIRST CAPTION='a' IMAGE='1' FIRSTIMAGE='2'/><LAST CAPTION='b' IMAGE='3' LASTIMAGE='4'/>"
                             "<PREVIOUS CAPTION='c' IMAGE='5' FIRSTIMAGE='6'/><NEXT CAPTION='d' IMAGE='7' "
                             "LASTIMAGE='8'/><INDEX CAPTION='e' IMAGE='file://9' FIRSTIMAGE='x' LASTIMAGE='y'/>"));
  EXPECT_EQ(Text(Settings().ImageFirstLink), "a|1|2");
  EXPECT_EQ(Text(Settings().ImageLastLink), "b|3|4");
  EXPECT_EQ(Text(Settings().ImagePreviousLink), "c|5|6");
  EXPECT_EQ(Text(Settings().ImageNextLink), "d|7|8");
  EXPECT_EQ(Text(Settings().ImageIndexLink), "e|9|");
}

TEST_F(ProjectFileReaderLinksTest, AnAbsentNextOfAWrapperPageClearsFirstAndIsUnchanged) {
  ASSERT_TRUE(ReadImageLinks("", "<FIRST CAPTION='a' IMAGE='1' FIRSTIMAGE='2'/>"));
  EXPECT_EQ(Text(Settings().ImageFirstLink), "||");
  EXPECT_EQ(Text(Settings().ImageNextLink), "NEXT||");
  EXPECT_EQ(Text(Settings().ImageLastLink), "||");
  EXPECT_EQ(Text(Settings().ImageIndexLink), "||");
}

TEST_F(ProjectFileReaderLinksTest, WithoutWrapperPagesTheirLinksHaveTheDefaults) {
  ASSERT_TRUE(Read(ProjectFileParts{}));
  EXPECT_EQ(Text(Settings().ImageFirstLink), "FIRST||");
  EXPECT_EQ(Text(Settings().ImageIndexLink), "INDEX||");
  EXPECT_EQ(Settings().comboPageLinksImageLinkPlacement, 2);
}
