#include "core/generation/ThumbnailPage.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class ThumbnailPage : public PageTest {
 protected:
  ThumbnailPage() {
    project.ThumbnailPageBodyHeader.clear();
    project.ThumbnailPageBodyFooter.clear();
  }

  std::string Page(std::int32_t page = 1, std::int32_t firstImage = 1) const {
    return generation::BuildThumbnailPage(run, page, firstImage);
  }
};

TEST_F(ThumbnailPage, OfOneImageHasTheseLines) {
  AddImages(1);
  Prepare();
  EXPECT_EQ(Page(), Lines({"<HTML>",
                           "<HEAD>",
                           "<TITLE>Holidays Index Page 1 of 1</TITLE>",
                           R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)",
                           "<!-- BEGIN USER DEFINED HEAD CODE -->",
                           "",
                           "<!-- END USER DEFINED HEAD CODE -->",
                           "</HEAD>",
                           "<BODY >",
                           "",
                           "<!-- BEGIN USER DEFINED BODY HEADER -->",
                           "",
                           "<!-- END USER DEFINED BODY HEADER -->",
                           "",
                           R"(<DIV ALIGN="CENTER">)",
                           R"(<TABLE  BORDER=0 CELLSPACING="2" CELLPADDING="0">)",
                           "<TR>",
                           "<TD ALIGN=CENTER VALIGN=CENTER>",
                           R"(<A NAME="img1">)",
                           "<!-- BEGIN USER DEFINED THUMBNAIL IMAGE HEADER -->",
                           "",
                           "<!-- END USER DEFINED THUMBNAIL IMAGE HEADER -->",
                           "",
                           R"(<A HREF="img1.htm" TARGET="_self"><IMG SRC="Thumbs/thumb_img1.JPG" BORDER="0" ></A>)",
                           "<!-- BEGIN USER DEFINED THUMBNAIL IMAGE FOOTER -->",
                           "",
                           "<!-- END USER DEFINED THUMBNAIL IMAGE FOOTER -->",
                           "",
                           "</TD>",
                           "</TR>",
                           "</TABLE>",
                           "</DIV>",
                           "",
                           "<!-- BEGIN USER DEFINED BODY FOOTER -->",
                           "",
                           "<!-- END USER DEFINED BODY FOOTER -->",
                           "",
                           "</BODY>",
                           "</HTML>"}));
}

TEST_F(ThumbnailPage, TwentySixImagesLeaveOneCellForTheSecondPage) {
  AddImages(26);
  Prepare();
  EXPECT_EQ(run.ThumbnailPageCount, 2);
  const std::string first = Page(1, 1);
  EXPECT_EQ(CountOf(first, "<TR>\r\n"), 5U);
  EXPECT_EQ(CountOf(first, "<TD ALIGN=CENTER"), 25U);
  const std::string second = Page(2, 26);
  EXPECT_EQ(CountOf(second, "<TR>\r\n"), 1U);
  EXPECT_EQ(CountOf(second, "</TR>\r\n"), 1U);
  EXPECT_EQ(CountOf(second, "<TD ALIGN=CENTER"), 1U);
  EXPECT_EQ(LineStartingWith(second, "<A NAME="), R"(<A NAME="img26">)");
}

TEST_F(ThumbnailPage, ARowEndsAfterTheLastImageAndNoEmptyRowFollows) {
  AddImages(4);
  SetGrid("3", "2");
  Prepare();
  EXPECT_EQ(CountOf(Page(), "<TR>\r\n"), 2U);
  EXPECT_EQ(CountOf(Page(1, 2), "<TR>\r\n"), 2U);
  EXPECT_EQ(CountOf(Page(1, 5), "<TR>\r\n"), 0U);
}

struct GridCase {
  core::Digits rows;
  core::Digits columns;
  std::int32_t firstImage;
  std::int32_t images;
};

TEST_F(ThumbnailPage, HasAsManyImagesAsTheGridHasCells) {
  AddImages(7);
  for (const GridCase& each :
       {GridCase{"2", "2", 1, 4}, GridCase{"2", "2", 5, 3}, GridCase{"2", "2", 7, 1}, GridCase{"2", "2", 8, 0},
        GridCase{"5", "5", 1, 7}, GridCase{"0", "5", 1, 0}, GridCase{"5", "0", 1, 0}, GridCase{"-2", "-2", 1, 0},
        GridCase{"", "2", 1, 0}, GridCase{"1.5", "2.5", 1, 4}, GridCase{"32768", "1", 3, 5},
        GridCase{"99999", "99999", 3, 5}, GridCase{"99999", "99999", 8, 0}}) {
    SetGrid(each.rows, each.columns);
    run.ImageCount = 7;
    run.ThumbnailPageCount = 2;
    EXPECT_EQ(generation::ImagesOnThumbnailPage(run, each.firstImage), each.images)
        << each.rows << " x " << each.columns;
    EXPECT_EQ(CountOf(Page(1, each.firstImage), "<TD ALIGN=CENTER"), static_cast<std::size_t>(each.images))
        << each.rows << " x " << each.columns;
  }
}

TEST_F(ThumbnailPage, AGridTooLargeForAPageIsAnOverflow) {
  AddImages(1);
  run.ImageCount = 1;
  SetGrid("1e10", "0.000001");
  EXPECT_THROW((void)generation::ImagesOnThumbnailPage(run, 1), env::RuntimeFailure);
  EXPECT_THROW((void)Page(), env::RuntimeFailure);
}

TEST_F(ThumbnailPage, ColorsAndBackdropAreAttributesOfTheBody) {
  AddImages(1);
  Prepare();
  project.textThumbnailsPageBackdrop = "C:\\pics\\sand.gif";
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"), R"(<BODY  BACKGROUND="Images/_backdrop_thumbpage.gif">)");
  project.checkThumbnailsPageSetColors = 1;
  project.ThumbnailPageBgColor = 0x030201;
  project.ThumbnailPageTextColor = 0x060504;
  project.ThumbnailPageLinkColor = 0x090807;
  project.ThumbnailPageVLinkColor = 0x0C0B0A;
  project.ThumbnailPageALinkColor = 0x0F0E0D;
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"),
            R"(<BODY BGCOLOR="010203" TEXT="040506" LINK="070809" VLINK="0A0B0C" ALINK="0D0E0F")"
            R"( BACKGROUND="Images/_backdrop_thumbpage.gif">)");
}

TEST_F(ThumbnailPage, TheTableHasItsNumbersAsTypedAndAHashBeforeTheColor) {
  AddImages(1);
  Prepare();
  project.textThumbnailsTableBorder = "01";
  project.textThumbnailsTableCellSpacing = "3";
  project.textThumbnailsTableCellPadding = "";
  EXPECT_EQ(LineStartingWith(Page(), "<TABLE"), R"(<TABLE  BORDER=01 CELLSPACING="3" CELLPADDING="">)");
  project.checkThumbnailsTableUseBGColor = 1;
  project.btnThumbnailsTableBGColor = 0x0000FF;
  EXPECT_TRUE(LineStartingWith(Page(), "<TABLE").starts_with(R"(<TABLE BGCOLOR="#FF0000" BORDER=01 )"));
  project.textThumbnailsTableBackdrop = "wood.png";
  EXPECT_TRUE(LineStartingWith(Page(), "<TABLE")
                  .starts_with(R"(<TABLE BGCOLOR="#FF0000" BACKGROUND="Images/_backdrop_thumbtable.png" BORDER=01 )"));
  project.checkThumbnailsTableUseBGColor = 0;
  EXPECT_TRUE(LineStartingWith(Page(), "<TABLE")
                  .starts_with(R"(<TABLE  BACKGROUND="Images/_backdrop_thumbtable.png" BORDER=01 )"));
}

TEST_F(ThumbnailPage, TheTableIsAlignedByItsDivAndFitToPageIsFullWidth) {
  AddImages(1);
  Prepare();
  const std::string names[] = {"CENTER", "LEFT", "CENTER", "RIGHT"};
  for (core::Choice alignment = 0; alignment < 4; ++alignment) {
    project.comboThumbnailsTableAlignment = alignment;
    EXPECT_EQ(LineStartingWith(Page(), "<DIV"), R"(<DIV ALIGN=")" + names[alignment] + R"(">)");
    EXPECT_EQ(LineStartingWith(Page(), "<TABLE"), std::string(R"(<TABLE  BORDER=0 CELLSPACING="2" CELLPADDING="0")") +
                                                      (alignment == 0 ? R"( WIDTH="100%">)" : ">"));
  }
}

TEST_F(ThumbnailPage, BarsAreAboveAndBelowTheTable) {
  AddImages(2);
  SetGrid("1", "1");
  Prepare();
  const std::string bar = R"(FIRST</A>&nbsp;BACK</A>&nbsp;&nbsp;<A HREF="thumbpage_2.htm">NEXT</A>)"
                          R"(&nbsp;<A HREF="thumbpage_2.htm">LAST</A>)";
  const std::string above = "<DIV ALIGN=\"CENTER\">\r\n" + bar + "\r\n<TABLE ";
  const std::string below = "</TABLE>\r\n" + bar + "\r\n</DIV>\r\n";
  for (core::Choice placement = 0; placement < 4; ++placement) {
    project.comboPageLinksThumbnailLinkPlacement = placement;
    EXPECT_EQ(Contains(Page(), above), placement == 1 || placement == 3) << placement;
    EXPECT_EQ(Contains(Page(), below), placement == 2 || placement == 3) << placement;
  }
}

TEST_F(ThumbnailPage, ASinglePageHasNoBar) {
  AddImages(1);
  Prepare();
  const std::string page = Page();
  for (core::Choice placement = 0; placement < 4; ++placement) {
    project.comboPageLinksThumbnailLinkPlacement = placement;
    EXPECT_EQ(Page(), page) << placement;
  }
}

TEST_F(ThumbnailPage, TheSlideShowRefreshIsOnEveryPage) {
  AddImages(2);
  SetGrid("1", "1");
  Prepare();
  const std::string refresh = R"(<META HTTP-EQUIV="REFRESH")";
  EXPECT_EQ(LineStartingWith(Page(), refresh), "(none)");
  project.checkGallerySlideShow = 1;
  project.comboGallerySlideShowBeginWith = 0;
  for (std::int32_t page = 1; page <= 2; ++page) {
    EXPECT_EQ(LineStartingWith(Page(page, page), refresh), refresh + R"( CONTENT="10; URL=img1.htm">)") << page;
  }
  EXPECT_TRUE(Contains(Page(), "3.0\">\r\n" + refresh));
}

TEST_F(ThumbnailPage, TemplatesOfThePageHaveTheTagsOfThePageOnly) {
  AddImages(2);
  SetGrid("1", "1");
  Prepare();
  const std::string all = "<VANTORIUM_THUMBPAGE_INDEX>/<VANTORIUM_IMAGE_INDEX>/<VANTORIUM_THUMB_DESCRIPTION>";
  project.ThumbnailPageHeadCode = "head " + all;
  project.ThumbnailPageBodyHeader = "header " + all;
  project.ThumbnailPageBodyFooter = "footer " + all;
  const std::string expanded = " 2/<VANTORIUM_IMAGE_INDEX>/<VANTORIUM_THUMB_DESCRIPTION>";
  for (const std::string name : {"head", "header", "footer"}) {
    EXPECT_EQ(LineStartingWith(Page(2, 2), name + " "), name + expanded);
  }
}

TEST_F(ThumbnailPage, TemplatesOfACellHaveTheTagsOfImagePageAndDescriptions) {
  AddImage("a", "", "thumb text");
  Prepare();
  const std::string all = "<VANTORIUM_THUMBPAGE_INDEX>/<VANTORIUM_IMAGE_INDEX>/<VANTORIUM_THUMB_DESCRIPTION>";
  project.ThumbnailHeader = "header " + all;
  project.ThumbnailFooter = "footer " + all;
  EXPECT_EQ(LineStartingWith(Page(), "header"), "header 1/1/thumb text");
  EXPECT_EQ(LineStartingWith(Page(), "footer"), "footer 1/1/thumb text");
}

TEST_F(ThumbnailPage, TheTagOfDirectLinksGivesTheTextOfTheRun) {
  AddImages(1);
  Prepare();
  run.DirectLinksText = "(direct)";
  project.ThumbnailPageBodyHeader = "links <VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>";
  EXPECT_EQ(LineStartingWith(Page(), "links"), "links (direct)");
}

}  // namespace
}  // namespace vantorium::tests
