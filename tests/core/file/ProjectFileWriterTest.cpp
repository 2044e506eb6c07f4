#include "core/file/ProjectFileWriter.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

class ProjectFileWriterTest : public ::testing::Test, public ProjectReading {
 public:
  GalleryProject& Edit() { return harness.project.settings; }
  [[nodiscard]] std::string Text() { return ProjectFileText(harness.project, harness.events); }
  bool Write(const std::string& target) {
    harness.calls.clear();
    return ProjectFileWriter(harness.project, harness.paths, harness.host, harness.events).WriteProjectFile(target);
  }
  /// Compares line by line, one element on each, so that a failure shows the element that differs.
  void ExpectText(const std::string& expected) {
    EXPECT_EQ(env::ReplaceAll(Text(), "><", ">\n<"), env::ReplaceAll(expected, "><", ">\n<"));
  }
  /// The start tag of the first element of that name, with its attributes; "none" if there is none.
  [[nodiscard]] std::string Tag(const std::string& name) {
    const std::string text = Text();
    const auto at = text.find('<' + name);
    return at == std::string::npos ? "none" : text.substr(at, text.find('>', at) + 1 - at);
  }
};

/// Fills in every optional element of the file.
void FillIn(ProjectHarness& harness) {
  GalleryProject& project = harness.project.settings;
  project.textGalleryTitle = "A \"title\" & <more>";
  project.GalleryHeadCode = "<META>\r\n";
  project.GalleryInfoText = "info";
  project.checkGallerySlideShow = 1;
  project.comboGallerySlideShowBeginWith = 0;
  project.checkCaptionsImagesRegular = 1;
  project.ImageRegularCaption = "c1";
  project.checkCaptionsImagesPopup = 1;
  project.ImagePopupCaption = "c2";
  project.checkCaptionsThumbnailsRegular = 1;
  project.comboCaptionsThumbnailsRegularPlacement = 0;
  project.checkCaptionsThumbnailsPopup = 1;
  project.comboImageDescriptionPlacement = 3;
  project.textHeader = "h";
  project.comboThumbnailDescriptionPlacement = 1;
  project.textThumbFooter = "f";
  project.ImageFilters = {1, 1, 26, 1, 193, 1, 51, 1, 86};
  project.ThumbnailFilters = {1, 1, 27, 1, 194, 1, 52, 0, 87};
  project.ImageWatermark.checkUseWatermark = 1;
  project.ImageWatermark.FontItalic = true;
  project.ThumbnailWatermark.FontUnderline = true;
  project.checkThumbnailsPageSetColors = 1;
  project.checkImageWrapperSetColors = 1;
  project.textThumbnailsPageBackdrop = "C:\\b.gif";
  project.textThumbnailsTableBackdrop = "t.gif";
  project.checkThumbnailsTableUseBGColor = 1;
  project.btnThumbnailsTableBGColor = 0x0000FF;
  project.ThumbnailPageHeadCode = "1";
  project.ThumbnailPageBodyHeader = "2";
  project.ThumbnailPageBodyFooter = "3";
  project.ThumbnailHeader = "4";
  project.ThumbnailFooter = "5";
  project.textImageWrapperBackdrop = "w.gif";
  project.ImagePageHeadCode = "6";
  project.ImagePageBodyHeader = "7";
  project.ImagePageBodyFooter = "8";
  project.ImageHeader = "9";
  project.ImageFooter = "0";
  project.checkPageLinksThumbnailDirectLinks = 1;
  project.comboPageLinksThumbnailLinkPlacement = 3;
  project.ThumbnailFirstLink = {"F", "C:\\f.gif", "g.gif"};
  project.ImageIndexLink = {"I", "i.gif", "never written"};
  harness.project.images.Insert(1, {"a.jpg", "C:\\photos\\a.jpg", "", "", "described", ""});
  harness.project.images.Insert(2, {"b.jpg", "Z:/b.jpg", "", "", "", "a thumbnail"});
}

}  // namespace

TEST_F(ProjectFileWriterTest, ElementsOfANewProjectAreWrittenInOrder) {
  Edit().textGalleryTitle = "Gallery1";
  ExpectText(
      "<GALLERYPROJECT VERSION=\"3.0\"><META NAME=\"GENERATOR\" CONTENT=\"Vantorium Image Gallery Creator 3.0\"/>"
      "<GALLERY TITLE=\"Gallery1\">"
      "<LAYOUT TYPE=\"singleframe\" IMAGEFRAMENAME=\"_self\" THUMBFRAMENAME=\"thumb_frame\" FRAMESIZE=\"200\" "
      "RESIZABLE=\"0\" BORDERS=\"0\"/>"
      "<IMAGES FOLDER=\"Images\"><DESCRIPTIONHEADER><![CDATA[]]></DESCRIPTIONHEADER>"
      "<DESCRIPTIONFOOTER><![CDATA[]]></DESCRIPTIONFOOTER>"
      "<MODIFY><SIZE KEEPASPECTRATIO=\"1\" HEIGHT=\"300\" PHYSICALRESIZE=\"1\"/></MODIFY></IMAGES>"
      "<THUMBNAILS FOLDER=\"Thumbs\"><DESCRIPTIONHEADER><![CDATA[]]></DESCRIPTIONHEADER>"
      "<DESCRIPTIONFOOTER><![CDATA[]]></DESCRIPTIONFOOTER>"
      "<MODIFY><SIZE KEEPASPECTRATIO=\"0\" WIDTH=\"60\" HEIGHT=\"60\"/></MODIFY></THUMBNAILS>"
      "<THUMBNAILPAGE PREFIX=\"thumbpage_\" EXTENSION=\".htm\"><HEADER><![CDATA["
      "<!-- This code is used to center the contents of the thumbnail page vertically -->\r\n"
      "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n<TR>\r\n<TD VALIGN=\"CENTER\">]]></HEADER>"
      "<FOOTER><![CDATA[</TD>\r\n</TR>\r\n</TABLE>]]></FOOTER>"
      "<ARRANGEMENT ROWS=\"5\" COLS=\"5\" ALIGN=\"center\" BORDER=\"0\" CELLSPACING=\"2\" CELLPADDING=\"0\"/>"
      "<PAGELINKS PLACE=\"top\"><FIRST CAPTION=\"FIRST\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<LAST CAPTION=\"LAST\" IMAGE=\"\" LASTIMAGE=\"\"/><PREVIOUS CAPTION=\"BACK\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<NEXT CAPTION=\"NEXT\" IMAGE=\"\" LASTIMAGE=\"\"/></PAGELINKS></THUMBNAILPAGE>"
      "<IMAGEPAGE PREFIX=\"\" EXTENSION=\".htm\" USE=\"1\"><HEADER><![CDATA["
      "<!-- This code is used to center the contents of the image wrapper vertically and horizontally -->\r\n"
      "<TABLE WIDTH=\"100%\" HEIGHT=\"100%\">\r\n<TR>\r\n<TD ALIGN=\"CENTER\" VALIGN=\"CENTER\">]]></HEADER>"
      "<FOOTER><![CDATA[</TD>\r\n</TR>\r\n</TABLE>]]></FOOTER>"
      "<PAGELINKS PLACE=\"bottom\"><FIRST CAPTION=\"FIRST\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<LAST CAPTION=\"LAST\" IMAGE=\"\" LASTIMAGE=\"\"/><PREVIOUS CAPTION=\"BACK\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<NEXT CAPTION=\"NEXT\" IMAGE=\"\" LASTIMAGE=\"\"/><INDEX CAPTION=\"INDEX\" IMAGE=\"\"/></PAGELINKS>"
      "</IMAGEPAGE></GALLERY></GALLERYPROJECT>");
}

TEST_F(ProjectFileWriterTest, ElementsOfAFullProjectAreWrittenInOrder) {
  FillIn(harness);
  ExpectText(
      "<GALLERYPROJECT VERSION=\"3.0\"><META NAME=\"GENERATOR\" CONTENT=\"Vantorium Image Gallery Creator 3.0\"/>"
      "<GALLERY TITLE=\"A &quot;title&quot; &amp; &lt;more>\"><HEAD><![CDATA[<META>\r\n]]></HEAD>"
      "<INFO><![CDATA[info]]></INFO>"
      "<LAYOUT TYPE=\"singleframe\" IMAGEFRAMENAME=\"_self\" THUMBFRAMENAME=\"thumb_frame\" FRAMESIZE=\"200\" "
      "RESIZABLE=\"0\" BORDERS=\"0\"><SLIDESHOW FIRSTSLIDE=\"firstThumbPage\" NEXTSLIDE=\"nextImage\" "
      "STARTOVER=\"firstImage\" AUTOSTART=\"1\" AUTOSTARTDELAY=\"10\" DELAY=\"5\"/></LAYOUT>"
      "<IMAGES FOLDER=\"Images\"><IMAGE INDEX=\"1\" NAME=\"a.jpg\" SOURCE=\"file://C:/photos/a.jpg\">"
      "<DESCRIPTION><![CDATA[described]]></DESCRIPTION></IMAGE>"
      "<IMAGE INDEX=\"2\" NAME=\"b.jpg\" SOURCE=\"file://Z:/b.jpg\"/>"
      "<CAPTION TYPE=\"regular\" PLACE=\"below\" ALIGN=\"right\"><![CDATA[c1]]></CAPTION>"
      "<CAPTION TYPE=\"popup\"><![CDATA[c2]]></CAPTION>"
      "<DESCRIPTIONHEADER PLACE=\"top\" ALIGN=\"left\"><![CDATA[h]]></DESCRIPTIONHEADER>"
      "<DESCRIPTIONFOOTER><![CDATA[]]></DESCRIPTIONFOOTER>"
      "<MODIFY><SIZE KEEPASPECTRATIO=\"1\" HEIGHT=\"300\" PHYSICALRESIZE=\"1\"/><FILTER TYPE=\"grayscale\"/>"
      "<FILTER TYPE=\"noise\" RANDOM=\"1\" VALUE=\"51\"/><FILTER TYPE=\"brightness\" VALUE=\"26\"/>"
      "<FILTER TYPE=\"fade\" VALUE=\"193\"/><FILTER TYPE=\"watermark\" CAPTION=\"SAMPLE\" ALPHA=\"65\" "
      "AUTOPOSITION=\"bottomlefttotopright\"><FONT FACE=\"Arial\" HEIGHT=\"36\" WEIGHT=\"700\" ITALIC=\"1\" "
      "UNDERLINE=\"0\" STRIKEOUT=\"0\" COLOR=\"FFFFFF\"/></FILTER><FILTER TYPE=\"quality\" VALUE=\"86\"/>"
      "</MODIFY></IMAGES>"
      "<THUMBNAILS FOLDER=\"Thumbs\"><THUMBNAIL INDEX=\"2\"><DESCRIPTION><![CDATA[a thumbnail]]></DESCRIPTION>"
      "</THUMBNAIL><CAPTION TYPE=\"regular\" PLACE=\"left\" ALIGN=\"center\"><![CDATA[]]></CAPTION>"
      "<CAPTION TYPE=\"popup\"><![CDATA[]]></CAPTION>"
      "<DESCRIPTIONHEADER PLACE=\"left\" ALIGN=\"top\"><![CDATA[]]></DESCRIPTIONHEADER>"
      "<DESCRIPTIONFOOTER><![CDATA[f]]></DESCRIPTIONFOOTER>"
      "<MODIFY><SIZE KEEPASPECTRATIO=\"0\" WIDTH=\"60\" HEIGHT=\"60\"/><FILTER TYPE=\"grayscale\"/>"
      "<FILTER TYPE=\"noise\" RANDOM=\"0\" VALUE=\"52\"/><FILTER TYPE=\"brightness\" VALUE=\"27\"/>"
      "<FILTER TYPE=\"fade\" VALUE=\"194\"/><FILTER TYPE=\"quality\" VALUE=\"87\"/><FILTER TYPE=\"watermark\" "
      "CAPTION=\"THUMB\" ALPHA=\"65\" AUTOPOSITION=\"bottomlefttotopright\"><FONT FACE=\"Arial\" HEIGHT=\"14\" "
      "WEIGHT=\"700\" ITALIC=\"0\" UNDERLINE=\"1\" STRIKEOUT=\"1\" COLOR=\"FFFFFF\"/></FILTER></MODIFY></THUMBNAILS>"
      "<THUMBNAILPAGE PREFIX=\"thumbpage_\" EXTENSION=\".htm\" BGCOLOR=\"FFFFFF\" TEXT=\"000000\" LINK=\"A00000\" "
      "ALINK=\"0000FF\" VLINK=\"A00000\" BACKGROUND=\"C:\\b.gif\"><HEAD><![CDATA[1]]></HEAD>"
      "<HEADER><![CDATA[2]]></HEADER><FOOTER><![CDATA[3]]></FOOTER>"
      "<ARRANGEMENT ROWS=\"5\" COLS=\"5\" ALIGN=\"center\" BORDER=\"0\" CELLSPACING=\"2\" CELLPADDING=\"0\" "
      "BACKGROUND=\"t.gif\" BGCOLOR=\"0000FF\"/><THUMBNAILHEADER><![CDATA[4]]></THUMBNAILHEADER>"
      "<THUMBNAILFOOTER><![CDATA[5]]></THUMBNAILFOOTER>"
      "<PAGELINKS DIRECT=\"all\" PLACE=\"top,bottom\">"
      "<FIRST CAPTION=\"F\" IMAGE=\"file://C:\\f.gif\" FIRSTIMAGE=\"file://g.gif\"/>"
      "<LAST CAPTION=\"LAST\" IMAGE=\"\" LASTIMAGE=\"\"/><PREVIOUS CAPTION=\"BACK\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<NEXT CAPTION=\"NEXT\" IMAGE=\"\" LASTIMAGE=\"\"/></PAGELINKS></THUMBNAILPAGE>"
      "<IMAGEPAGE PREFIX=\"\" EXTENSION=\".htm\" BGCOLOR=\"FFFFFF\" TEXT=\"000000\" LINK=\"A00000\" "
      "ALINK=\"0000FF\" VLINK=\"A00000\" BACKGROUND=\"w.gif\" USE=\"1\"><HEAD><![CDATA[6]]></HEAD>"
      "<HEADER><![CDATA[7]]></HEADER><FOOTER><![CDATA[8]]></FOOTER><IMAGEHEADER><![CDATA[9]]></IMAGEHEADER>"
      "<IMAGEFOOTER><![CDATA[0]]></IMAGEFOOTER>"
      "<PAGELINKS PLACE=\"bottom\"><FIRST CAPTION=\"FIRST\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<LAST CAPTION=\"LAST\" IMAGE=\"\" LASTIMAGE=\"\"/><PREVIOUS CAPTION=\"BACK\" IMAGE=\"\" FIRSTIMAGE=\"\"/>"
      "<NEXT CAPTION=\"NEXT\" IMAGE=\"\" LASTIMAGE=\"\"/><INDEX CAPTION=\"I\" IMAGE=\"file://i.gif\"/></PAGELINKS>"
      "</IMAGEPAGE></GALLERY></GALLERYPROJECT>");
}

TEST_F(ProjectFileWriterTest, ASlideShowIsWrittenForASingleFrameOnly) {
  Edit().checkGallerySlideShow = 1;
  EXPECT_EQ(Tag("SLIDESHOW"),
            "<SLIDESHOW FIRSTSLIDE=\"firstImage\" NEXTSLIDE=\"nextImage\" STARTOVER=\"firstImage\" AUTOSTART=\"0\" "
            "DELAY=\"5\"/>");
  Edit().comboGallerySlideShowBeginWith = 0;
  Edit().checkGallerySlideShowAutoStart = 0;
  Edit().comboGallerySlideShowActionAfterImage = 2;
  Edit().comboGallerySlideShowStartOverWith = 2;
  EXPECT_EQ(Tag("SLIDESHOW"),
            "<SLIDESHOW FIRSTSLIDE=\"firstThumbPage\" NEXTSLIDE=\"firstThumbPage\" STARTOVER=\"stop\" "
            "AUTOSTART=\"0\" DELAY=\"5\"/>");
  Edit().comboGalleryLayoutType = 1;
  EXPECT_EQ(Tag("SLIDESHOW"), "none");
}

TEST_F(ProjectFileWriterTest, EachLayoutHasItsWord) {
  const char* const words[] = {"singleframe", "thumbsleft", "thumbsright", "thumbstop", "thumbsbottom"};
  for (Choice type = 0; type < 5; ++type) {
    Edit().comboGalleryLayoutType = type;
    EXPECT_TRUE(Tag("LAYOUT").starts_with(std::string("<LAYOUT TYPE=\"") + words[type] + "\"")) << type;
  }
}

TEST_F(ProjectFileWriterTest, AFrameSizeInPercentEndsInAPercentSign) {
  Edit().checkGalleryFrameSizeInPercent = 1;
  Edit().textGalleryFrameSize = "30";
  EXPECT_NE(Tag("LAYOUT").find("FRAMESIZE=\"30%\""), std::string::npos);
}

TEST_F(ProjectFileWriterTest, TheImageSizeIsWrittenUnlessImagesKeepTheirSize) {
  const auto size = [this](Flag keepAspectRatio, Flag setWidth) {
    Edit().checkImageWrapperImageKeepAspectRatio = keepAspectRatio;
    Edit().checkImageWrapperImageSetWidth = setWidth;
    return Tag("SIZE");
  };
  EXPECT_EQ(size(0, 0), "<SIZE KEEPASPECTRATIO=\"0\" WIDTH=\"400\" HEIGHT=\"300\" PHYSICALRESIZE=\"1\"/>");
  EXPECT_EQ(size(0, 1), "<SIZE KEEPASPECTRATIO=\"0\" WIDTH=\"400\" HEIGHT=\"300\" PHYSICALRESIZE=\"1\"/>");
  EXPECT_EQ(size(1, 0), "<SIZE KEEPASPECTRATIO=\"1\" HEIGHT=\"300\" PHYSICALRESIZE=\"1\"/>");
  EXPECT_EQ(size(1, 1), "<SIZE KEEPASPECTRATIO=\"1\" WIDTH=\"400\" PHYSICALRESIZE=\"1\"/>");
  Edit().checkImageWrapperImageKeepSize = 1;
  EXPECT_EQ(Tag("SIZE"), "<SIZE KEEPASPECTRATIO=\"0\" WIDTH=\"60\" HEIGHT=\"60\"/>");  // the thumbnails' size
  EXPECT_NE(Text().find("<MODIFY/></IMAGES>"), std::string::npos);
}

TEST_F(ProjectFileWriterTest, PhotographCorrectionsAreWrittenOnlyIfTheyAreOn) {
  EXPECT_EQ(Tag("IMAGES"), "<IMAGES FOLDER=\"Images\">");
  Edit().checkImagesTrueColors = 1;
  EXPECT_EQ(Tag("IMAGES"), "<IMAGES FOLDER=\"Images\" TRUECOLORS=\"1\">");
  Edit().checkImagesUpright = 1;
  EXPECT_EQ(Tag("IMAGES"), "<IMAGES FOLDER=\"Images\" UPRIGHT=\"1\" TRUECOLORS=\"1\">");
}

TEST_F(ProjectFileWriterTest, AQualityIsWrittenOnlyWithAnotherFilter) {
  Edit().ImageFilters.sliderQuality = 10;
  Edit().ThumbnailFilters.sliderQuality = 20;
  EXPECT_EQ(Text().find("FILTER"), std::string::npos);
  Edit().ThumbnailFilters.checkFade = 1;
  EXPECT_NE(Text().find("<FILTER TYPE=\"fade\" VALUE=\"192\"/><FILTER TYPE=\"quality\" VALUE=\"20\"/></MODIFY>"),
            std::string::npos);
  EXPECT_EQ(Text().find("VALUE=\"10\""), std::string::npos);
}

TEST_F(ProjectFileWriterTest, TheWatermarkOfTheImagesDecidesForBoth) {
  Edit().ThumbnailWatermark.checkUseWatermark = 1;
  EXPECT_EQ(Text().find("watermark"), std::string::npos);
  Edit().ThumbnailWatermark.checkUseWatermark = 0;
  Edit().ImageWatermark.checkUseWatermark = 1;
  EXPECT_NE(Text().find("CAPTION=\"SAMPLE\""), std::string::npos);
  EXPECT_NE(Text().find("CAPTION=\"THUMB\""), std::string::npos);
  // The watermark counts as a filter for the images but not for the thumbnails.
  EXPECT_EQ(Text().find("TYPE=\"quality\""), Text().rfind("TYPE=\"quality\""));
}

TEST_F(ProjectFileWriterTest, AnUnknownWatermarkPlaceHasNoAttribute) {
  Edit().ImageWatermark.checkUseWatermark = 1;
  Edit().ImageWatermark.comboTextPlacement = 11;
  EXPECT_EQ(Tag("FILTER"), "<FILTER TYPE=\"watermark\" CAPTION=\"SAMPLE\" ALPHA=\"65\">");
}

TEST_F(ProjectFileWriterTest, TheAlignmentOfCaptionsDependsOnTheirPlace) {
  Edit().checkCaptionsImagesRegular = 1;
  const std::string words[4][2] = {{"left", "top"}, {"right", "top"}, {"above", "left"}, {"below", "left"}};
  for (Choice place = 0; place < 4; ++place) {
    Edit().comboCaptionsImagesRegularPlacement = place;
    Edit().comboCaptionsImagesRegularAlignment = 0;
    EXPECT_EQ(Tag("CAPTION"),
              "<CAPTION TYPE=\"regular\" PLACE=\"" + words[place][0] + "\" ALIGN=\"" + words[place][1] + "\">");
  }
}

TEST_F(ProjectFileWriterTest, TheAlignmentOfDescriptionsDependsOnTheirPlace) {
  const std::string attributes[5] = {"", " PLACE=\"left\" ALIGN=\"bottom\"", " PLACE=\"right\" ALIGN=\"bottom\"",
                                     " PLACE=\"top\" ALIGN=\"right\"", " PLACE=\"bottom\" ALIGN=\"right\""};
  for (Choice place = 0; place < 5; ++place) {
    Edit().comboImageDescriptionPlacement = place;
    Edit().comboImageDescriptionAlignment = 2;
    EXPECT_EQ(Tag("DESCRIPTIONHEADER"), "<DESCRIPTIONHEADER" + attributes[place] + ">");
  }
}

TEST_F(ProjectFileWriterTest, AnyZeroOfDirectLinksIsWrittenAsAll) {
  Edit().checkPageLinksThumbnailDirectLinks = 1;
  const std::pair<std::string, std::string> cases[] = {
      {"0", "all"}, {"00", "all"}, {"0.0", "all"}, {"7", "7"}, {"", ""}};
  for (const auto& [most, direct] : cases) {
    Edit().textPageLinksThumbnailMaxDirectLinks = most;
    EXPECT_EQ(Tag("PAGELINKS"), "<PAGELINKS DIRECT=\"" + direct + "\" PLACE=\"top\">") << most;
  }
}

TEST_F(ProjectFileWriterTest, LinksWithoutAPlaceHaveNoPlaceAttribute) {
  Edit().comboPageLinksThumbnailLinkPlacement = 0;
  EXPECT_EQ(Tag("PAGELINKS"), "<PAGELINKS>");
}

TEST_F(ProjectFileWriterTest, WithoutWrapperPagesThereIsNoImagePage) {
  Edit().checkImageWrapperUse = 0;
  EXPECT_EQ(Tag("IMAGEPAGE"), "none");
}

TEST_F(ProjectFileWriterTest, LineBreaksInAttributesAreWrittenAsReferences) {
  Edit().textGalleryTitle = "a\r\nb\tc";
  EXPECT_EQ(Tag("GALLERY "), "<GALLERY TITLE=\"a&#13;&#10;b&#09;c\">");
}

TEST_F(ProjectFileWriterTest, ATextWithTheEndOfACDATASectionIsReadBackWhole) {
  for (const std::string& text : {std::string("]]>"), std::string("a]]>b]]>"), std::string("]]]]>>"),
                                  std::string("<![CDATA[x]]>"), std::string("]]"), std::string("&lt;]]&gt;")}) {
    harness.project.images.Clear();
    harness.AddImage("a.jpg", text, text);
    ASSERT_TRUE(Read(Text())) << text;
    EXPECT_EQ(harness.project.images.Entry(1).ImageDescription, text);
    EXPECT_EQ(harness.project.images.Entry(1).ThumbnailDescription, text);
  }
}

TEST_F(ProjectFileWriterTest, CharactersThatXmlForbidsAreReplacedAndTheFileCanBeRead) {
  Edit().textGalleryTitle = std::string("a\0b\x01", 4) + "\xE9";
  Edit().GalleryHeadCode = "caf\xE9\x1B";
  ASSERT_TRUE(Read(Text()));
  EXPECT_EQ(Settings().textGalleryTitle,
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(Settings().GalleryHeadCode, "caf\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(ProjectFileWriterTest, AnImagePathThatXmlCannotHoldIsNotWritten) {
  const std::string target = harness.File("a.gpj", "old");
  harness.project.images.Insert(1, {"a", "C:\\caf\xE9.jpg", "", "", "", ""});
  EXPECT_THROW(std::ignore = Text(), env::RuntimeFailure);
  EXPECT_FALSE(Write(target));
  EXPECT_EQ(harness.folder.Read("a.gpj"), "old");
}

TEST_F(ProjectFileWriterTest, ValuesThatTheReaderRefusesAreNotWritten) {
  Edit().textGalleryTitle = std::string(20'000'000, 'x');
  EXPECT_THROW(std::ignore = Text(), env::RuntimeFailure);
}

TEST_F(ProjectFileWriterTest, WritingShowsTheFileAndTheBusyPointerAndRemovesBoth) {
  const std::string target = harness.PathOf("a.gpj");
  ASSERT_TRUE(Write(target));
  EXPECT_EQ(harness.calls,
            (Calls{"status Writing Project File \"" + target + "\"...", "wait pointer", "status ", "pointer"}));
  EXPECT_EQ(harness.folder.Read("a.gpj"), Text());
}

TEST_F(ProjectFileWriterTest, AFailedWriteReturnsFalseWithoutAMessageBox) {
  for (const std::string& target : {harness.PathOf("no folder/a.gpj"), harness.paths.ToText(harness.folder.Path()),
                                    std::string("Q:\\a.gpj"), std::string()}) {
    EXPECT_FALSE(Write(target)) << target;
    EXPECT_EQ(harness.calls,
              (Calls{"status Writing Project File \"" + target + "\"...", "wait pointer", "status ", "pointer"}));
  }
}

TEST_F(ProjectFileWriterTest, TheTargetOfALinkIsReplacedAndTheLinkStays) {
  harness.folder.Write("real/a.gpj", "old");
  std::filesystem::create_symlink("real/a.gpj", harness.folder.Path() / "link.gpj");
  std::filesystem::create_symlink("real/new.gpj", harness.folder.Path() / "dangling.gpj");
  ASSERT_TRUE(Write(harness.PathOf("link.gpj")));
  EXPECT_TRUE(std::filesystem::is_symlink(harness.folder.Path() / "link.gpj"));
  EXPECT_EQ(harness.folder.Read("real/a.gpj"), Text());
  ASSERT_TRUE(Write(harness.PathOf("dangling.gpj")));
  EXPECT_EQ(harness.folder.Read("real/new.gpj"), Text());
}

TEST_F(ProjectFileWriterTest, ALinkToItselfIsNotFollowedForever) {
  std::filesystem::create_symlink("loop.gpj", harness.folder.Path() / "loop.gpj");
  std::ignore = Write(harness.PathOf("loop.gpj"));
  SUCCEED();
}

TEST_F(ProjectFileWriterTest, TheEventLoopHasATurnAfterTheStatusText) {
  Calls callsThen;
  harness.events.onTurn = [&](int turn) {
    if (turn == 1) callsThen = harness.calls;
  };
  const std::string target = harness.PathOf("out.gpj");
  ASSERT_TRUE(Write(target));
  EXPECT_EQ(callsThen, (Calls{"status Writing Project File \"" + target + "\"...", "wait pointer"}));
}

TEST_F(ProjectFileWriterTest, TheEventLoopHasATurnEvery100ImagesAndAsTheTextGrows) {
  const auto turnsWith = [&](std::size_t images, const std::string& description) {
    while (harness.project.images.Count() < images) harness.AddImage("a.jpg", description);
    harness.events.turns = 0;
    std::ignore = Text();
    return harness.events.turns;
  };
  const int few = turnsWith(1, "");
  EXPECT_EQ(turnsWith(350, ""), few + 2 * 3) << "for images and for thumbnails";
  EXPECT_GT(turnsWith(1'050, std::string(5'000, 'a')), few + 2 * 10);
}
