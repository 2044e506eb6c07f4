#include "tests/fakes/ProjectReading.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileReaderImagesTest : public ::testing::Test, public ProjectReading {
 public:
  bool ReadLists(const std::string& lists) { return Read(ProjectFileParts{.lists = lists}); }
  bool ReadImages(const std::string& children) { return ReadLists("<IMAGES>" + children + "</IMAGES>"); }
  bool ReadThumbnails(const std::string& children) {
    return ReadLists("<IMAGES>" + Image("1", "a") + Image("2", "b") + "</IMAGES><THUMBNAILS>" + children +
                     "</THUMBNAILS>");
  }
  /// An IMAGE element with an existing file.
  std::string Image(const std::string& index, const std::string& name, const std::string& children = "") {
    return "<IMAGE INDEX='" + index + "' NAME='" + name + "' SOURCE='file://" + harness.File("photo.jpg") + "'>" +
           children + "</IMAGE>";
  }
  [[nodiscard]] std::string Names() const {
    std::string names;
    for (std::size_t position = 1; position <= harness.project.images.Count(); ++position) {
      names += (position > 1 ? " " : "") + harness.project.images.Entry(position).ImageName;
    }
    return names;
  }
  [[nodiscard]] const ImageEntry& Entry(std::size_t position) const { return harness.project.images.Entry(position); }
};

}  // namespace

TEST_F(ProjectFileReaderImagesTest, AnImageIsReadWithItsPathSortKeysAndDescription) {
  ASSERT_TRUE(ReadImages("<IMAGE INDEX='1' NAME='n' SOURCE='FILE://" + harness.File("five.jpg", "12345") +
                         "'><DESCRIPTION><![CDATA[a\r\nb]]></DESCRIPTION></IMAGE>"));
  EXPECT_EQ(Entry(1).ImageName, "n");
  EXPECT_EQ(Entry(1).SourcePath, harness.PathOf("five.jpg"));
  EXPECT_EQ(Entry(1).SizeKey, "00000000000000000005");
  EXPECT_EQ(Entry(1).DateKey.size(), 17U);
  EXPECT_EQ(Entry(1).ImageDescription, "a\r\nb");
  EXPECT_EQ(Entry(1).ThumbnailDescription, "");
}

TEST_F(ProjectFileReaderImagesTest, SlashesOfASourceStay) {
  harness.File("a.jpg");
  std::string source = harness.PathOf("a.jpg");
  std::ranges::replace(source, '\\', '/');
  ASSERT_TRUE(ReadImages("<IMAGE INDEX='1' NAME='a' SOURCE='" + source + "'/>"));
  EXPECT_EQ(Entry(1).SourcePath, source);
}

TEST_F(ProjectFileReaderImagesTest, ImagesAreInsertedAtTheirIndexesInFileOrder) {
  ASSERT_TRUE(ReadImages(Image("1", "a") + Image("1", "b") + Image("2", "c")));
  EXPECT_EQ(Names(), "b c a");
}

TEST_F(ProjectFileReaderImagesTest, DuplicateNamesAreNumbered) {
  ASSERT_TRUE(ReadImages(Image("1", "a") + Image("2", "a") + Image("3", "a")));
  EXPECT_EQ(Names(), "a a_1 a_2");
}

TEST_F(ProjectFileReaderImagesTest, ImagesInsideOtherElementsAreReadToo) {
  ASSERT_TRUE(ReadImages("<GROUP>" + Image("1", "a", Image("2", "b")) + "</GROUP>" + Image("3", "c")));
  EXPECT_EQ(Names(), "a b c");
}

TEST_F(ProjectFileReaderImagesTest, AnAbsentNameIsEmpty) {
  ASSERT_TRUE(ReadImages("<IMAGE INDEX='1' SOURCE='" + harness.File("a.jpg") + "'/>"));
  EXPECT_EQ(Names(), "");
  EXPECT_EQ(harness.project.images.Count(), 1U);
}

TEST_F(ProjectFileReaderImagesTest, AnIndexThatIsNotAPositionFails) {
  const std::pair<std::string, std::string> cases[] = {{"first", "Type mismatch"},    {"", "Type mismatch"},
                                                       {"0", "Index out of bounds"},  {"3", "Index out of bounds"},
                                                       {"-1", "Index out of bounds"}, {"99999999999", "Overflow"}};
  for (const auto& [index, failure] : cases) {
    EXPECT_FALSE(ReadImages(Image("1", "a") + Image(index, "b"))) << index;
    EXPECT_EQ(Box(), "Vantorium: " + failure) << index;
    EXPECT_EQ(Names(), "a") << index;
  }
  EXPECT_FALSE(ReadImages("<IMAGE NAME='a' SOURCE='" + harness.File("a.jpg") + "'/>"));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
}

TEST_F(ProjectFileReaderImagesTest, AnUnreadableSourceEndsTheLoadWithAMessageBox) {
  for (const std::string& source : {harness.PathOf("gone.jpg"), std::string("Q:\\a.jpg"), std::string()}) {
    EXPECT_FALSE(
        ReadImages(Image("1", "a") + "<IMAGE INDEX='2' NAME='b' SOURCE='file://" + source + "'/>" + Image("3", "c")));
    EXPECT_EQ(Box(), "File Error: An Error occurred trying to read the image file \"" + source +
                         "\":\r\rFile not found\r\rLoading Process cancelled.");
    EXPECT_EQ(Names(), "a");
    EXPECT_EQ(harness.calls.back(), "pointer");
    EXPECT_EQ(harness.calls[harness.calls.size() - 2], "status ");
  }
}

TEST_F(ProjectFileReaderImagesTest, AnAbsentFolderGetsTheDefaultOfItsList) {
  ASSERT_TRUE(ReadLists("<IMAGES/><THUMBNAILS/>"));
  EXPECT_EQ(Settings().textImageSettingsSubFolder, "Images");
  EXPECT_EQ(Settings().textThumbnailImageSettingsSubFolder, "1");
  ASSERT_TRUE(ReadLists("<IMAGES FOLDER=''/><THUMBNAILS FOLDER='t'/>"));
  EXPECT_EQ(Settings().textImageSettingsSubFolder, "");
  EXPECT_EQ(Settings().textThumbnailImageSettingsSubFolder, "t");
  ASSERT_TRUE(ReadLists(""));
  EXPECT_EQ(Settings().textThumbnailImageSettingsSubFolder, "Thumbs");
}

TEST_F(ProjectFileReaderImagesTest, CaptionsAreReadByTheirType) {
  ASSERT_TRUE(
      ReadImages("<CAPTION TYPE='Regular' PLACE='left' ALIGN='TOP'>a\nb</CAPTION><CAPTION TYPE='other'>x</CAPTION>"
                 "<CAPTION>x</CAPTION><CAPTION TYPE='POPUP'>c</CAPTION>"));
  EXPECT_EQ(Settings().checkCaptionsImagesRegular, 1);
  EXPECT_EQ(Settings().ImageRegularCaption, "a\r\nb");
  EXPECT_EQ(Settings().comboCaptionsImagesRegularPlacement, 0);
  EXPECT_EQ(Settings().comboCaptionsImagesRegularAlignment, 0);
  EXPECT_EQ(Settings().checkCaptionsImagesPopup, 1);
  EXPECT_EQ(Settings().ImagePopupCaption, "c");
  EXPECT_EQ(Settings().checkCaptionsThumbnailsRegular, 0);
  EXPECT_EQ(Settings().checkCaptionsThumbnailsPopup, 0);
}

TEST_F(ProjectFileReaderImagesTest, ThumbnailsHaveSeparateCaptions) {
  ASSERT_TRUE(
      ReadThumbnails("<CAPTION TYPE='regular' PLACE='right' ALIGN='bottom'>a</CAPTION>"
                     "<CAPTION TYPE='popup'>b</CAPTION>"));
  EXPECT_EQ(Settings().checkCaptionsThumbnailsRegular, 1);
  EXPECT_EQ(Settings().ThumbnailRegularCaption, "a");
  EXPECT_EQ(Settings().comboCaptionsThumbnailsRegularPlacement, 1);
  EXPECT_EQ(Settings().comboCaptionsThumbnailsRegularAlignment, 2);
  EXPECT_EQ(Settings().ThumbnailPopupCaption, "b");
  EXPECT_EQ(Settings().checkCaptionsImagesRegular, 0);
}

TEST_F(ProjectFileReaderImagesTest, CaptionPlacesAboveAndBelowAreUnknown) {
  const std::pair<std::string, int> cases[] = {{"left", 0},  {"Right", 1}, {"top", 2}, {"BOTTOM", 3},
                                               {"above", 3}, {"below", 3}, {"", 3},    {"x", 3}};
  for (const auto& [place, index] : cases) {
    ASSERT_TRUE(ReadImages("<CAPTION TYPE='regular' PLACE='" + place + "' ALIGN='left'/>")) << place;
    EXPECT_EQ(Settings().comboCaptionsImagesRegularPlacement, index) << place;
    EXPECT_EQ(Settings().comboCaptionsImagesRegularAlignment, 0) << place;
  }
}

TEST_F(ProjectFileReaderImagesTest, HorizontalAndVerticalAlignmentsShareTheirNumbers) {
  const std::pair<std::string, int> cases[] = {{"top", 0},   {"LEFT", 0}, {"Center", 1}, {"bottom", 2},
                                               {"right", 2}, {"", 2},     {"middle", 2}};
  for (const auto& [align, index] : cases) {
    ASSERT_TRUE(ReadImages("<CAPTION TYPE='regular' ALIGN='" + align + "'/>")) << align;
    EXPECT_EQ(Settings().comboCaptionsImagesRegularAlignment, index) << align;
  }
}

TEST_F(ProjectFileReaderImagesTest, TheDescriptionFrameIsRead) {
  const std::pair<std::string, int> cases[] = {{"left", 1}, {"RIGHT", 2}, {"top", 3}, {"bottom", 4}, {"", 0}, {"x", 0}};
  for (const auto& [place, index] : cases) {
    ASSERT_TRUE(ReadImages("<DESCRIPTIONHEADER PLACE='" + place +
                           "' ALIGN='right'>a\nb</DESCRIPTIONHEADER><DESCRIPTIONFOOTER>c</DESCRIPTIONFOOTER>"))
        << place;
    EXPECT_EQ(Settings().comboImageDescriptionPlacement, index) << place;
    EXPECT_EQ(Settings().comboImageDescriptionAlignment, 2) << place;
    EXPECT_EQ(Settings().textHeader, "a\r\nb") << place;
    EXPECT_EQ(Settings().textFooter, "c") << place;
  }
}

TEST_F(ProjectFileReaderImagesTest, AnAbsentThumbnailDescriptionHeaderClearsThatOfTheImages) {
  const std::string images =
      "<IMAGES><DESCRIPTIONHEADER PLACE='top'>h</DESCRIPTIONHEADER><DESCRIPTIONFOOTER>f"
      "</DESCRIPTIONFOOTER></IMAGES>";
  ASSERT_TRUE(ReadLists(images + "<THUMBNAILS><DESCRIPTIONHEADER PLACE='left'>t</DESCRIPTIONHEADER></THUMBNAILS>"));
  EXPECT_EQ(Settings().textHeader, "h");
  EXPECT_EQ(Settings().comboImageDescriptionPlacement, 3);
  EXPECT_EQ(Settings().textThumbHeader, "t");
  EXPECT_EQ(Settings().comboThumbnailDescriptionPlacement, 1);
  EXPECT_EQ(Settings().textThumbFooter, "");
  ASSERT_TRUE(ReadLists(images + "<THUMBNAILS><DESCRIPTIONFOOTER>t</DESCRIPTIONFOOTER></THUMBNAILS>"));
  EXPECT_EQ(Settings().textHeader, "");
  EXPECT_EQ(Settings().comboImageDescriptionPlacement, 0);
  EXPECT_EQ(Settings().textFooter, "f");
  EXPECT_EQ(Settings().textThumbFooter, "t");
}

TEST_F(ProjectFileReaderImagesTest, AnAbsentImageSizeKeepsTheSize) {
  ASSERT_TRUE(ReadImages("<MODIFY/>"));
  EXPECT_EQ(Settings().checkImageWrapperImageKeepSize, 1);
  ASSERT_TRUE(ReadImages("<MODIFY><SIZE/></MODIFY>"));
  EXPECT_EQ(Settings().checkImageWrapperImageKeepSize, 0);
  ASSERT_TRUE(ReadImages(""));
  EXPECT_EQ(Settings().checkImageWrapperImageKeepSize, 0);
}

TEST_F(ProjectFileReaderImagesTest, TheImageSizeIsRead) {
  ASSERT_TRUE(ReadImages("<MODIFY><SIZE KEEPASPECTRATIO='0' WIDTH='640' HEIGHT='0' PHYSICALRESIZE='0'/></MODIFY>"));
  EXPECT_EQ(Settings().checkImageWrapperImageKeepAspectRatio, 0);
  EXPECT_EQ(Settings().checkImageWrapperImageSetWidth, 1);
  EXPECT_EQ(Settings().textImageWrapperImageWidth, "640");
  EXPECT_EQ(Settings().textImageWrapperImageHeight, "1");
  EXPECT_EQ(Settings().checkImageWrapperImagePhysicalResize, 0);
  ASSERT_TRUE(ReadImages("<MODIFY><SIZE KEEPASPECTRATIO='1' HEIGHT='70'/></MODIFY>"));
  EXPECT_EQ(Settings().checkImageWrapperImageSetWidth, 0);
  EXPECT_EQ(Settings().textImageWrapperImageWidth, "400");
  EXPECT_EQ(Settings().textImageWrapperImageHeight, "70");
  EXPECT_EQ(Settings().checkImageWrapperImagePhysicalResize, 1);
  EXPECT_FALSE(ReadImages("<MODIFY><SIZE KEEPASPECTRATIO='yes'/></MODIFY>"));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
}

TEST_F(ProjectFileReaderImagesTest, PhotographCorrectionsAreOnOnlyForTheNumberOne) {
  ASSERT_TRUE(ReadLists("<IMAGES UPRIGHT='1' TRUECOLORS='1'/>"));
  EXPECT_EQ(Settings().checkImagesUpright, 1);
  EXPECT_EQ(Settings().checkImagesTrueColors, 1);
  for (const char* off : {"<IMAGES/>", "<IMAGES UPRIGHT='0' TRUECOLORS=''/>", "<IMAGES UPRIGHT='yes' TRUECOLORS='7'/>",
                          "<IMAGES upright='1'/>", "<THUMBNAILS UPRIGHT='1' TRUECOLORS='1'/>"}) {
    ASSERT_TRUE(ReadLists(off)) << off;
    EXPECT_EQ(Settings().checkImagesUpright, 0) << off;
    EXPECT_EQ(Settings().checkImagesTrueColors, 0) << off;
  }
}

TEST_F(ProjectFileReaderImagesTest, AnAbsentThumbnailSizeChangesNothing) {
  ASSERT_TRUE(ReadThumbnails("<MODIFY/>"));
  EXPECT_EQ(Settings().checkThumbnailsImageKeepAspectRatio, 0);
  EXPECT_EQ(Settings().checkThumbnailsImageSetWidth, 0);
  EXPECT_EQ(Settings().textThumbnailsImageWidth, "60");
  ASSERT_TRUE(ReadThumbnails("<MODIFY><SIZE KEEPASPECTRATIO='1' WIDTH='80' PHYSICALRESIZE='x'/></MODIFY>"));
  EXPECT_EQ(Settings().checkThumbnailsImageKeepAspectRatio, 1);
  EXPECT_EQ(Settings().checkThumbnailsImageSetWidth, 1);
  EXPECT_EQ(Settings().textThumbnailsImageWidth, "80");
  EXPECT_EQ(Settings().textThumbnailsImageHeight, "60");
}

TEST_F(ProjectFileReaderImagesTest, ThumbnailDescriptionsGoToTheImagesWithTheirIndex) {
  ASSERT_TRUE(
      ReadThumbnails("<THUMBNAIL INDEX='2'><DESCRIPTION>old</DESCRIPTION></THUMBNAIL>"
                     "<THUMBNAIL><DESCRIPTION>nobody</DESCRIPTION></THUMBNAIL>"
                     "<THUMBNAIL INDEX='1'><DESCRIPTION><![CDATA[a\nb]]></DESCRIPTION></THUMBNAIL>"
                     "<THUMBNAIL INDEX='2'/>"));
  EXPECT_EQ(Entry(1).ThumbnailDescription, "a\r\nb");
  EXPECT_EQ(Entry(2).ThumbnailDescription, "");
}

TEST_F(ProjectFileReaderImagesTest, AThumbnailWithoutAnImageFailsAndTheImagesStay) {
  for (const char* index : {"0", "3", "-1", "100000"}) {
    EXPECT_FALSE(ReadThumbnails("<THUMBNAIL INDEX='" + std::string(index) + "'/>")) << index;
    EXPECT_EQ(Reason(), "Invalid Thumbnail Description Index.") << index;
    EXPECT_EQ(Names(), "a b") << index;
  }
  EXPECT_FALSE(ReadThumbnails("<THUMBNAIL INDEX='x'/>"));
  EXPECT_EQ(Box(), "Vantorium: Type mismatch");
}

TEST_F(ProjectFileReaderImagesTest, TheEventLoopHasATurnEvery100ImagesAndThumbnails) {
  std::string images, thumbnails;
  for (int count = 0; count < 350; ++count) images += Image("1", "a");
  for (int count = 0; count < 250; ++count) thumbnails += "<THUMBNAIL INDEX='1'/>";
  const auto turnsOf = [&](const std::string& lists) {
    harness.events.turns = 0;
    EXPECT_TRUE(ReadLists(lists));
    return harness.events.turns;
  };
  const int few = turnsOf("<IMAGES>" + Image("1", "a") + "</IMAGES><THUMBNAILS><THUMBNAIL INDEX='1'/></THUMBNAILS>");
  EXPECT_EQ(turnsOf("<IMAGES>" + images + "</IMAGES>"), few + 3);
  EXPECT_EQ(turnsOf("<IMAGES>" + Image("1", "a") + "</IMAGES><THUMBNAILS>" + thumbnails + "</THUMBNAILS>"), few + 2);
}
