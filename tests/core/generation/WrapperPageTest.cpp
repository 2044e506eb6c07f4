#include "core/generation/WrapperPage.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class WrapperPage : public PageTest {
 protected:
  WrapperPage() {
    project.ImagePageBodyHeader.clear();
    project.ImagePageBodyFooter.clear();
    project.checkImageWrapperImageKeepSize = 1;
  }

  std::string Page(std::int32_t image = 1) const { return generation::BuildWrapperPage(run, image); }
};

TEST_F(WrapperPage, OfTheOnlyImageHasTheseLines) {
  AddImage("x");
  Prepare();
  EXPECT_EQ(Page(), Lines({"<HTML>",
                           "<HEAD>",
                           "<TITLE>Holidays Image 1 of 1</TITLE>",
                           R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)",
                           "  <!-- BEGIN USER DEFINED HEAD CODE -->",
                           "",
                           "  <!-- END USER DEFINED HEAD CODE -->",
                           "</HEAD>",
                           "",
                           "<BODY >",
                           "<!-- BEGIN USER DEFINED BODY HEADER -->",
                           "",
                           "<!-- END USER DEFINED BODY HEADER -->",
                           "",
                           "<!-- BEGIN USER DEFINED IMAGE HEADER -->",
                           "",
                           "<!-- END USER DEFINED IMAGE HEADER -->",
                           "",
                           R"(<IMG SRC="Images/x.JPG" BORDER="0"  >)",
                           "",
                           "<!-- BEGIN USER DEFINED IMAGE FOOTER -->",
                           "",
                           "<!-- END USER DEFINED IMAGE FOOTER -->",
                           "",
                           "<BR>",
                           "",  // the empty bar
                           "<BR><BR>",
                           "",
                           "",
                           "<!-- BEGIN USER DEFINED BODY FOOTER -->",
                           "",
                           "<!-- END USER DEFINED BODY FOOTER -->",
                           "",
                           "</BODY>",
                           "</HTML>"}));
}

TEST_F(WrapperPage, BarsAreAboveAndBelowTheImageWithALineBreak) {
  AddImages(2);
  Prepare();
  const std::string bar = R"(FIRST</A>&nbsp;BACK</A>&nbsp;<A HREF="thumbpage_1.htm#img1">INDEX</A>)"
                          R"(&nbsp;<A HREF="img2.htm">NEXT</A>&nbsp;<A HREF="img2.htm">LAST</A>)";
  for (core::Choice placement = 0; placement < 4; ++placement) {
    project.comboPageLinksImageLinkPlacement = placement;
    const std::string page = Page();
    const bool above = placement == 1 || placement == 3;
    const bool below = placement == 2 || placement == 3;
    EXPECT_EQ(Contains(page, "BODY HEADER -->\r\n\r\n" + bar + "\r\n<BR>\r\n<!-- BEGIN USER DEFINED IMAGE HEADER"),
              above);
    EXPECT_EQ(Contains(page, "IMAGE FOOTER -->\r\n\r\n<BR>\r\n" + bar + "\r\n<BR><BR>\r\n\r\n\r\n"), below);
    EXPECT_EQ(CountOf(page, bar), std::size_t{above} + std::size_t{below}) << placement;
  }
}

TEST_F(WrapperPage, HasTheLinesOfTheBarEvenWithOneImage) {
  AddImages(1);
  Prepare();
  project.comboPageLinksImageLinkPlacement = 3;
  EXPECT_TRUE(Contains(Page(), "BODY HEADER -->\r\n\r\n\r\n<BR>\r\n<!-- BEGIN USER DEFINED IMAGE HEADER"));
  EXPECT_TRUE(Contains(Page(), "IMAGE FOOTER -->\r\n\r\n<BR>\r\n\r\n<BR><BR>\r\n"));
}

TEST_F(WrapperPage, TheSlideShowRefreshIsAfterTheGenerator) {
  AddImages(2);
  Prepare();
  const std::string refresh = R"(<META HTTP-EQUIV="REFRESH")";
  EXPECT_EQ(LineStartingWith(Page(), refresh), "(none)");
  project.checkGallerySlideShow = 1;
  project.textGallerySlideShowDelay = "7";
  EXPECT_TRUE(Contains(Page(), "3.0\">\r\n" + refresh + R"( CONTENT="7; URL=img2.htm">)" + "\r\n  <!--"));
  project.comboGallerySlideShowStartOverWith = 2;
  EXPECT_EQ(LineStartingWith(Page(2), refresh), "(none)");
  project.comboGallerySlideShowActionAfterImage = 1;
  EXPECT_EQ(LineStartingWith(Page(2), refresh), refresh + R"( CONTENT="7; URL=thumbpage_1.htm">)");
}

TEST_F(WrapperPage, ColorsAreThoseOfImagePages) {
  AddImages(1);
  Prepare();
  project.checkImageWrapperSetColors = 1;
  project.ImagePageBgColor = 0x030201;
  project.ImagePageTextColor = 0x060504;
  project.ImagePageLinkColor = 0x090807;
  project.ImagePageVLinkColor = 0x0C0B0A;
  project.ImagePageALinkColor = 0x0F0E0D;
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"),
            R"(<BODY BGCOLOR="010203" TEXT="040506" LINK="070809" VLINK="0A0B0C" ALINK="0D0E0F">)");
}

TEST_F(WrapperPage, ABackdropSharedWithThumbnailPagesRefersToTheirCopy) {
  AddImages(1);
  Prepare();
  project.textImageWrapperBackdrop = "C:\\pics\\sand.gif";
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"), R"(<BODY  BACKGROUND="Images/_backdrop_imagepage.gif">)");
  project.textThumbnailsPageBackdrop = "C:\\pics\\wood.gif";
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"), R"(<BODY  BACKGROUND="Images/_backdrop_imagepage.gif">)");
  project.textThumbnailsPageBackdrop = "C:\\pics\\sand.gif";
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"), R"(<BODY  BACKGROUND="Images/_backdrop_thumbpage.gif">)");
  project.textImageWrapperBackdrop = "";
  EXPECT_EQ(LineStartingWith(Page(), "<BODY"), "<BODY >");
}

TEST_F(WrapperPage, TemplatesHaveTheTagsOfTheImageOnly) {
  AddImages(1);
  AddImage("b", "image text");
  Prepare();
  const std::string all = "<VANTORIUM_IMAGE_INDEX>/<VANTORIUM_THUMBPAGE_INDEX>/<VANTORIUM_IMAGE_DESCRIPTION>";
  project.ImagePageBodyHeader = "header " + all;
  project.ImagePageBodyFooter = "footer " + all;
  project.ImageHeader = "above " + all;
  project.ImageFooter = "below " + all;
  for (const std::string name : {"header", "footer", "above", "below"}) {
    EXPECT_EQ(LineStartingWith(Page(2), name), name + " 2/<VANTORIUM_THUMBPAGE_INDEX>/image text");
  }
}

TEST_F(WrapperPage, TheHeadCodeHasNoDescriptionTags) {
  AddImage("b", "image text");
  Prepare();
  project.ImagePageHeadCode = "head <VANTORIUM_IMAGE_INDEX>/<VANTORIUM_IMAGE_DESCRIPTION>";
  EXPECT_EQ(LineStartingWith(Page(), "head"), "head 1/<VANTORIUM_IMAGE_DESCRIPTION>");
}

}  // namespace
}  // namespace vantorium::tests
