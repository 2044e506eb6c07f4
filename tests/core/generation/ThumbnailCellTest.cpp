#include "core/generation/ThumbnailCell.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

const std::string kThumbnail = R"(<A HREF="a.htm" TARGET="_self"><IMG SRC="Thumbs/thumb_a.JPG" BORDER="0" ></A>)";
const std::string kWide = R"(<TABLE WIDTH="100%" BORDER="0" CELLSPACING="1" CELLPADDING="0">)";
const std::string kNarrow = R"(<TABLE BORDER="0" CELLSPACING="1" CELLPADDING="0">)";
const std::string kEnd = "</TD></TR></TABLE>";

class ThumbnailCell : public PageTest {
 protected:
  ThumbnailCell() {
    AddImage("a", "image text", "D");
    Prepare();
    project.ThumbnailRegularCaption = "C";
  }

  std::string Content() const { return generation::ThumbnailCellContent(run, 1, 1); }

  void SetDescription(core::Choice placement, core::Choice alignment) {
    project.comboThumbnailDescriptionPlacement = placement;
    project.comboThumbnailDescriptionAlignment = alignment;
  }

  void SetCaption(core::Choice placement, core::Choice alignment) {
    project.checkCaptionsThumbnailsRegular = 1;
    project.comboCaptionsThumbnailsRegularPlacement = placement;
    project.comboCaptionsThumbnailsRegularAlignment = alignment;
  }
};

TEST_F(ThumbnailCell, IsALinkToTheImage) {
  EXPECT_EQ(Content(), kThumbnail);
  project.comboImageFrameName = "image_frame";
  project.checkImageWrapperUse = 0;
  EXPECT_EQ(Content(), R"(<A HREF="Images/a.JPG" TARGET="image_frame"><IMG SRC="Thumbs/thumb_a.JPG" BORDER="0" ></A>)");
  run.mode = generation::GenerationMode::Publish;
  EXPECT_TRUE(Contains(Content(), R"(SRC="Thumbs/thumb_a.JPG")"));
}

TEST_F(ThumbnailCell, InAPreviewTheSourceIsScaled) {
  Prepare(generation::GenerationMode::Preview);
  const std::string image = R"(<IMG SRC="file:///home/anna/Photos/a.JPG" BORDER="0" WIDTH="61" HEIGHT="46" ></A>)";
  EXPECT_EQ(Content(), R"(<A HREF="a.htm" TARGET="_self">)" + image);
  project.checkImageWrapperUse = 0;
  EXPECT_EQ(Content(), R"(<A HREF="file:///home/anna/Photos/a.JPG" TARGET="_self">)" + image);
}

TEST_F(ThumbnailCell, ThePopupCaptionIsItsAlternativeText) {
  project.checkCaptionsThumbnailsPopup = 1;
  project.ThumbnailPopupCaption =
      "<VANTORIUM_IMAGE_TITLE>, p. <VANTORIUM_THUMBPAGE_INDEX>: <VANTORIUM_THUMB_DESCRIPTION>";
  EXPECT_TRUE(Content().ends_with(R"( BORDER="0" ALT="a, p. 1: D"></A>)")) << Content();
  project.ThumbnailPopupCaption = "";
  EXPECT_TRUE(Content().ends_with(R"( BORDER="0" ALT=""></A>)"));
}

TEST_F(ThumbnailCell, ADescriptionIsPlacedAsSet) {
  SetDescription(1, 0);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD ALIGN="LEFT" VALIGN="TOP">D</TD><TD WIDTH="61"ALIGN="RIGHT" VALIGN="TOP">)" +
                           kThumbnail + kEnd);
  SetDescription(2, 1);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD WIDTH="61"ALIGN="LEFT" VALIGN="CENTER">)" + kThumbnail +
                           R"(</TD><TD ALIGN="LEFT" VALIGN="CENTER">D)" + kEnd);
  SetDescription(3, 2);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD ALIGN="RIGHT" VALIGN="BOTTOM" HEIGHT="100%">D</TD></TR>)" +
                           R"(<TR><TD ALIGN="RIGHT" VALIGN="TOP">)" + kThumbnail + kEnd);
  SetDescription(4, 1);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD ALIGN="CENTER" VALIGN="BOTTOM">)" + kThumbnail +
                           R"(</TD></TR><TR><TD ALIGN="CENTER" VALIGN="TOP" HEIGHT="100%">D)" + kEnd);
}

TEST_F(ThumbnailCell, ADescriptionHasItsHeaderAndFooterAndNoPageTags) {
  SetDescription(3, 0);
  images.SetThumbnailDescription(1, "<VANTORIUM_IMAGE_INDEX><VANTORIUM_THUMBPAGE_INDEX><VANTORIUM_IMAGE_DESCRIPTION>");
  project.textThumbHeader = "[<VANTORIUM_IMAGE_DESCRIPTION>";
  project.textThumbFooter = "<VANTORIUM_THUMBPAGE_INDEX>]";
  EXPECT_TRUE(Contains(Content(),
                       "[image text1<VANTORIUM_THUMBPAGE_INDEX><VANTORIUM_IMAGE_DESCRIPTION>"
                       "<VANTORIUM_THUMBPAGE_INDEX>]</TD>"))
      << Content();
}

TEST_F(ThumbnailCell, ACaptionIsPlacedAsSet) {
  SetCaption(0, 0);
  EXPECT_EQ(Content(),
            kNarrow + R"(<TR><TD ALIGN="LEFT" VALIGN="TOP" WIDTH="100%">C&nbsp;</TD><TD ALIGN="LEFT" VALIGN="TOP">)" +
                kThumbnail + kEnd);
  SetCaption(1, 2);
  EXPECT_EQ(Content(), kNarrow + R"(<TR><TD ALIGN="LEFT" VALIGN="BOTTOM">)" + kThumbnail +
                           R"(</TD><TD ALIGN="LEFT" VALIGN="BOTTOM" WIDTH="100%">&nbsp;C)" + kEnd);
  SetCaption(2, 1);
  EXPECT_EQ(
      Content(),
      kNarrow +
          R"(<TR><TD ALIGN="CENTER" VALIGN="BOTTOM" HEIGHT="100%">C</TD></TR><TR><TD ALIGN="CENTER" VALIGN="TOP">)" +
          kThumbnail + kEnd);
  SetCaption(3, 2);
  EXPECT_EQ(Content(), kNarrow + R"(<TR><TD ALIGN="RIGHT" VALIGN="BOTTOM">)" + kThumbnail +
                           R"(</TD></TR><TR><TD ALIGN="RIGHT" VALIGN="TOP" HEIGHT="100%">C)" + kEnd);
}

TEST_F(ThumbnailCell, OnlyCaptionsBesideTheThumbnailGetBlanks) {
  const std::string spaced[] = {">C&nbsp;</TD>", ">&nbsp;C&nbsp;</TD>", ">&nbsp;C</TD>"};
  for (core::Choice alignment = 0; alignment < 3; ++alignment) {
    for (core::Choice placement = 0; placement < 4; ++placement) {
      SetCaption(placement, alignment);
      EXPECT_TRUE(Contains(Content(), placement < 2 ? spaced[alignment] : ">C</TD>")) << Content();
    }
  }
}

TEST_F(ThumbnailCell, ACaptionMayHaveTagsOfImagePageAndDescriptions) {
  SetCaption(3, 0);
  project.ThumbnailRegularCaption = "<VANTORIUM_IMAGE_INDEX>/<VANTORIUM_THUMBPAGE_INDEX>/<VANTORIUM_THUMB_DESCRIPTION>";
  EXPECT_TRUE(Contains(Content(), ">1/1/D</TD>")) << Content();
}

TEST_F(ThumbnailCell, WithACaptionADescriptionRightOrBelowRepeatsTheCaption) {
  SetCaption(3, 2);
  const std::string inner = kNarrow + R"(<TR><TD ALIGN="RIGHT" VALIGN="BOTTOM">)" + kThumbnail +
                            R"(</TD></TR><TR><TD ALIGN="RIGHT" VALIGN="TOP" HEIGHT="100%">C)" + kEnd;
  SetDescription(2, 0);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD WIDTH="61"ALIGN="LEFT" VALIGN="TOP">)" + inner +
                           R"(</TD><TD ALIGN="RIGHT" VALIGN="TOP">C)" + kEnd);
  SetDescription(4, 0);
  EXPECT_EQ(Content(), kWide + R"(<TR><TD ALIGN="LEFT" VALIGN="BOTTOM">)" + inner +
                           R"(</TD></TR><TR><TD ALIGN="RIGHT" VALIGN="TOP" HEIGHT="100%">C)" + kEnd);
  SetCaption(1, 0);
  EXPECT_TRUE(Content().ends_with(R"(<TD ALIGN="LEFT" VALIGN="TOP" HEIGHT="100%">C&nbsp;)" + kEnd)) << Content();
}

TEST_F(ThumbnailCell, WithACaptionADescriptionLeftOrAboveIsUnchanged) {
  SetCaption(0, 1);
  const std::string inner =
      kNarrow +
      R"(<TR><TD ALIGN="LEFT" VALIGN="CENTER" WIDTH="100%">&nbsp;C&nbsp;</TD><TD ALIGN="LEFT" VALIGN="CENTER">)" +
      kThumbnail + kEnd;
  SetDescription(1, 2);
  EXPECT_EQ(Content(),
            kWide + R"(<TR><TD ALIGN="LEFT" VALIGN="BOTTOM">D</TD><TD WIDTH="61"ALIGN="RIGHT" VALIGN="BOTTOM">)" +
                inner + kEnd);
  SetDescription(3, 0);
  EXPECT_EQ(Content(),
            kWide +
                R"(<TR><TD ALIGN="LEFT" VALIGN="BOTTOM" HEIGHT="100%">D</TD></TR><TR><TD ALIGN="LEFT" VALIGN="TOP">)" +
                inner + kEnd);
}

}  // namespace
}  // namespace vantorium::tests
