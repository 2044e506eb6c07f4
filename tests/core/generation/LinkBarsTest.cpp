#include "core/generation/LinkBars.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

std::string A(const std::string& target) {
  return R"(<A HREF=")" + target + R"(">)";
}
std::string G(const std::string& name) {
  return R"(<IMG SRC="Images/)" + name + R"(" BORDER="0" ALIGN="MIDDLE">)";
}

class LinkBars : public PageTest {
 protected:
  LinkBars() {
    AddImages(3);
    SetGrid("1", "1");
    Prepare();
    run.DirectLinksText = "(direct)";
  }
};

TEST_F(LinkBars, TheThumbnailBarHasFourTextLinks) {
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 2),
            A("thumbpage_1.htm") + "FIRST</A>&nbsp;" + A("thumbpage_1.htm") + "BACK</A>&nbsp;" +  //
                "&nbsp;" + A("thumbpage_3.htm") + "NEXT</A>" + "&nbsp;" + A("thumbpage_3.htm") + "LAST</A>");
}

TEST_F(LinkBars, OnTheFirstPageFirstAndPreviousHaveNoAnchors) {
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 1), "FIRST</A>&nbsp;BACK</A>&nbsp;&nbsp;" + A("thumbpage_2.htm") +
                                                           "NEXT</A>&nbsp;" + A("thumbpage_3.htm") + "LAST</A>");
}

TEST_F(LinkBars, OnTheLastPageNextAndLastHaveNoAnchors) {
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 3), A("thumbpage_1.htm") + "FIRST</A>&nbsp;" + A("thumbpage_2.htm") +
                                                           "BACK</A>&nbsp;&nbsp;NEXT</A>&nbsp;LAST</A>");
}

TEST_F(LinkBars, DirectLinksAreInTheMiddleIfTurnedOn) {
  EXPECT_FALSE(Contains(generation::BuildThumbnailPageBar(run, 1), "(direct)"));
  project.checkPageLinksThumbnailDirectLinks = 1;
  EXPECT_TRUE(Contains(generation::BuildThumbnailPageBar(run, 1), "BACK</A>&nbsp;(direct)&nbsp;<A"));
}

TEST_F(LinkBars, ASinglePageOrImageHasNoBar) {
  run.ThumbnailPageCount = 1;
  run.ImageCount = 1;
  project.checkPageLinksThumbnailDirectLinks = 1;
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 1), "");
  EXPECT_EQ(generation::BuildImagePageBar(run, 1), "");
}

TEST_F(LinkBars, GraphicsAreBeforeTheTextOnTheLeftAndAfterItOnTheRight) {
  project.ThumbnailFirstLink = {"F", "a.gif", "a0.gif"};
  project.ThumbnailPreviousLink = {"P", "a.png", "a0.png"};
  project.ThumbnailNextLink = {"N", "a.jpg", "a0.jpg"};
  project.ThumbnailLastLink = {"L", "a.bmp", "a0.bmp"};
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 2),
            A("thumbpage_1.htm") + G("_thumblink_first.gif") + "</A>&nbsp;" + A("thumbpage_1.htm") + "F</A>&nbsp;" +
                A("thumbpage_1.htm") + G("_thumblink_previous.png") + "</A>&nbsp;" + A("thumbpage_1.htm") +
                "P</A>&nbsp;" + "&nbsp;" + A("thumbpage_3.htm") + "N</A>&nbsp;" + A("thumbpage_3.htm") +
                G("_thumblink_next.jpg") + "</A>" + "&nbsp;" + A("thumbpage_3.htm") + "L</A>&nbsp;" +
                A("thumbpage_3.htm") + G("_thumblink_last.bmp") + "</A>");
  EXPECT_TRUE(generation::BuildThumbnailPageBar(run, 1).starts_with(
      G("_thumblink_first_first.gif") + "</A>&nbsp;F</A>&nbsp;" + G("_thumblink_previous_first.png") +
      "</A>&nbsp;P</A>&nbsp;"));
}

TEST_F(LinkBars, AGraphicMayHaveNoLabel) {
  project.ThumbnailFirstLink = {"", "a.gif", ""};
  project.ThumbnailPreviousLink = {"", "a.gif", ""};
  project.ThumbnailNextLink = {"", "a.gif", ""};
  project.ThumbnailLastLink = {"", "a.gif", ""};
  EXPECT_EQ(generation::BuildThumbnailPageBar(run, 2), A("thumbpage_1.htm") + G("_thumblink_first.gif") + "</A>&nbsp;" +
                                                           A("thumbpage_1.htm") + G("_thumblink_previous.gif") +
                                                           "</A>&nbsp;" + "&nbsp;" + A("thumbpage_3.htm") +
                                                           G("_thumblink_next.gif") + "</A>" + "&nbsp;" +
                                                           A("thumbpage_3.htm") + G("_thumblink_last.gif") + "</A>");
}

TEST_F(LinkBars, ALinkWithoutLabelAndGraphicIsAnEmptyAnchor) {
  project.ThumbnailFirstLink = {};
  project.ThumbnailLastLink = {};
  const std::string bar = generation::BuildThumbnailPageBar(run, 2);
  EXPECT_TRUE(bar.starts_with(A("thumbpage_1.htm") + "</A>&nbsp;"));
  EXPECT_TRUE(bar.ends_with("&nbsp;" + A("thumbpage_3.htm") + "</A>"));
}

TEST_F(LinkBars, TheImageBarHasTheIndexInTheMiddle) {
  EXPECT_EQ(generation::BuildImagePageBar(run, 2),
            A("img1.htm") + "FIRST</A>&nbsp;" + A("img1.htm") + "BACK</A>&nbsp;" + A("thumbpage_2.htm#img2") +
                "INDEX</A>" + "&nbsp;" + A("img3.htm") + "NEXT</A>" + "&nbsp;" + A("img3.htm") + "LAST</A>");
}

TEST_F(LinkBars, TheImageBarKeepsItsTextsAtBothEnds) {
  EXPECT_TRUE(
      generation::BuildImagePageBar(run, 1).starts_with("FIRST</A>&nbsp;BACK</A>&nbsp;" + A("thumbpage_1.htm#img1")));
  EXPECT_TRUE(generation::BuildImagePageBar(run, 3).ends_with("INDEX</A>&nbsp;NEXT</A>&nbsp;LAST</A>"));
}

TEST_F(LinkBars, LayoutsWithTwoFramesHaveNoIndexLink) {
  for (core::Choice layout = 1; layout <= 4; ++layout) {
    project.comboGalleryLayoutType = layout;
    EXPECT_EQ(generation::BuildImagePageBar(run, 2), A("img1.htm") + "FIRST</A>&nbsp;" + A("img1.htm") +
                                                         "BACK</A>&nbsp;" + "&nbsp;" + A("img3.htm") + "NEXT</A>" +
                                                         "&nbsp;" + A("img3.htm") + "LAST</A>")
        << layout;
  }
}

TEST_F(LinkBars, TheGraphicOfTheIndexIsOnEitherSideOfItsText) {
  const std::string anchor = A("thumbpage_2.htm#img2");
  const std::string graphic = anchor + G("_imagelink_index.gif") + "</A>";
  project.ImageIndexLink = {"INDEX", "i.gif", ""};
  EXPECT_TRUE(Contains(generation::BuildImagePageBar(run, 2),
                       "BACK</A>&nbsp;" + graphic + "&nbsp;" + anchor + "INDEX</A>&nbsp;" + graphic + "&nbsp;<A"));
  project.ImageIndexLink = {"", "i.gif", ""};
  EXPECT_TRUE(Contains(generation::BuildImagePageBar(run, 2), "BACK</A>&nbsp;" + graphic + "&nbsp;&nbsp;<A"));
}

TEST_F(LinkBars, TheTextOfNextWithAGraphicDependsOnTheLabelOfPrevious) {
  const std::string graphic = A("img3.htm") + G("_imagelink_next.gif") + "</A>";
  const std::string last = "&nbsp;" + A("img3.htm") + "LAST</A>";
  project.ImageNextLink = {"NEXT", "n.gif", ""};
  EXPECT_TRUE(
      generation::BuildImagePageBar(run, 2).ends_with("&nbsp;" + A("img3.htm") + "NEXT</A>&nbsp;" + graphic + last));
  project.ImageNextLink.textLinkLabel = "";
  EXPECT_TRUE(
      generation::BuildImagePageBar(run, 2).ends_with("&nbsp;" + A("img3.htm") + "</A>&nbsp;" + graphic + last));
  project.ImagePreviousLink.textLinkLabel = "";
  project.ImageNextLink.textLinkLabel = "NEXT";
  EXPECT_TRUE(generation::BuildImagePageBar(run, 2).ends_with("INDEX</A>&nbsp;" + graphic + last));
}

TEST_F(LinkBars, LastAndTheThumbnailBarUseTheirOwnLabels) {
  project.ImagePreviousLink.textLinkLabel = "";
  project.ImageLastLink = {"LAST", "l.gif", ""};
  EXPECT_TRUE(generation::BuildImagePageBar(run, 2).ends_with("&nbsp;" + A("img3.htm") + "LAST</A>&nbsp;" +
                                                              A("img3.htm") + G("_imagelink_last.gif") + "</A>"));
  project.ThumbnailPreviousLink.textLinkLabel = "";
  project.ThumbnailNextLink = {"NEXT", "n.gif", ""};
  EXPECT_TRUE(Contains(generation::BuildThumbnailPageBar(run, 2), A("thumbpage_3.htm") + "NEXT</A>&nbsp;"));
}

TEST_F(LinkBars, AGridWithoutCellsFailsOnlyAtTheIndexLink) {
  SetGrid("0", "5");
  EXPECT_THROW((void)generation::BuildImagePageBar(run, 2), env::RuntimeFailure);
  project.comboGalleryLayoutType = 1;
  EXPECT_NO_THROW((void)generation::BuildImagePageBar(run, 2));
}

}  // namespace
}  // namespace vantorium::tests
