#include "core/generation/WrapperContent.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

const std::string kTable = R"(<TABLE CELLSPACING="2" CELLPADDING="0" BORDER="0"><TR>)";
const std::string kImage = R"(<IMG SRC="Images/x.JPG" BORDER="0"  >)";
const std::string kEnd = "</TD></TR></TABLE>";

class WrapperContentLine : public PageTest {
 protected:
  WrapperContentLine() {
    AddImage("x", "E", "thumb text");
    Prepare();
    project.checkImageWrapperImageKeepSize = 1;
    project.ImageRegularCaption = "C";
  }

  std::string Content() const { return generation::WrapperContent(run, 1); }

  void SetCaption(core::Choice placement, core::Choice alignment) {
    project.checkCaptionsImagesRegular = 1;
    project.comboCaptionsImagesRegularPlacement = placement;
    project.comboCaptionsImagesRegularAlignment = alignment;
  }

  void SetDescription(core::Choice placement, core::Choice alignment) {
    project.comboImageDescriptionPlacement = placement;
    project.comboImageDescriptionAlignment = alignment;
  }
};

TEST_F(WrapperContentLine, OfAnImageAloneKeepsTheBlanksOfOmittedAttributes) {
  EXPECT_EQ(Content(), kImage);
  run.mode = generation::GenerationMode::Publish;
  EXPECT_EQ(Content(), kImage);
}

TEST_F(WrapperContentLine, OfAPreviewShowsTheSource) {
  Prepare(generation::GenerationMode::Preview);
  EXPECT_EQ(Content(), R"(<IMG SRC="file:///home/anna/Photos/x.JPG" BORDER="0"  >)");
}

TEST_F(WrapperContentLine, StatesTheSizeAsTyped) {
  project.checkImageWrapperImageKeepSize = 0;
  project.textImageWrapperImageWidth = "0640";
  project.textImageWrapperImageHeight = "480";
  project.checkImageWrapperImageSetWidth = 1;
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0" WIDTH="0640" >)");
  project.checkImageWrapperImageSetWidth = 0;
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0"  HEIGHT="480" >)");
  project.checkImageWrapperImageKeepAspectRatio = 0;
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0" WIDTH="0640" HEIGHT="480" >)");
  project.checkImageWrapperImageSetWidth = 1;
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0" WIDTH="0640" HEIGHT="480" >)");
  project.checkImageWrapperImageSizesInPercent = 1;
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0" WIDTH="0640%" HEIGHT="480%" >)");
}

TEST_F(WrapperContentLine, ThePopupCaptionIsTheAlternativeText) {
  project.checkCaptionsImagesPopup = 1;
  project.ImagePopupCaption = "<VANTORIUM_IMAGE_INDEX>: <VANTORIUM_IMAGE_DESCRIPTION> <VANTORIUM_THUMBPAGE_INDEX>";
  EXPECT_EQ(Content(), R"(<IMG SRC="Images/x.JPG" BORDER="0"  ALT="1: E <VANTORIUM_THUMBPAGE_INDEX>">)");
}

TEST_F(WrapperContentLine, ACaptionIsPlacedAsSet) {
  SetCaption(0, 1);
  EXPECT_EQ(Content(),
            kTable + R"(<TD ALIGN="RIGHT" VALIGN="CENTER">C</TD><TD ALIGN="RIGHT" VALIGN="CENTER">)" + kImage + kEnd);
  SetCaption(1, 0);
  EXPECT_EQ(Content(),
            kTable + R"(<TD ALIGN="LEFT" VALIGN="TOP">)" + kImage + R"(</TD><TD ALIGN="LEFT" VALIGN="TOP">C)" + kEnd);
  SetCaption(2, 0);
  EXPECT_EQ(Content(), kTable + R"(<TD ALIGN="LEFT" VALIGN="BOTTOM">C</TD></TR><TR><TD ALIGN="LEFT" VALIGN="TOP">)" +
                           kImage + kEnd);
  SetCaption(3, 2);
  EXPECT_EQ(Content(), kTable + R"(<TD ALIGN="RIGHT" VALIGN="BOTTOM">)" + kImage +
                           R"(</TD></TR><TR><TD ALIGN="RIGHT" VALIGN="TOP">C)" + kEnd);
}

TEST_F(WrapperContentLine, ADescriptionIsPlacedAroundImageAndCaption) {
  SetCaption(1, 1);
  const std::string inner =
      kTable + R"(<TD ALIGN="LEFT" VALIGN="CENTER">)" + kImage + R"(</TD><TD ALIGN="LEFT" VALIGN="CENTER">C)" + kEnd;
  SetDescription(1, 0);
  EXPECT_EQ(Content(), kTable + R"(<TD VALIGN="TOP" ALIGN="LEFT">E</TD><TD ALIGN="CENTER">)" + inner + kEnd);
  SetDescription(2, 1);
  EXPECT_EQ(Content(), kTable + R"(<TD ALIGN="CENTER">)" + inner + R"(</TD><TD VALIGN="CENTER" ALIGN="LEFT">E)" + kEnd);
  SetDescription(3, 2);
  EXPECT_EQ(Content(),
            kTable + R"(<TD VALIGN="BOTTOM" ALIGN="RIGHT">E</TD></TR><TR><TD ALIGN="CENTER">)" + inner + kEnd);
  SetDescription(4, 1);
  EXPECT_EQ(Content(),
            kTable + R"(<TD ALIGN="CENTER">)" + inner + R"(</TD></TR><TR><TD VALIGN="TOP" ALIGN="CENTER">E)" + kEnd);
}

TEST_F(WrapperContentLine, ADescriptionHasItsHeaderAndFooter) {
  SetDescription(1, 0);
  images.SetImageDescription(1, "<VANTORIUM_IMAGE_INDEX><VANTORIUM_THUMB_DESCRIPTION>");
  project.textHeader = "[<VANTORIUM_THUMB_DESCRIPTION>:";
  project.textFooter = ":<VANTORIUM_IMAGE_COUNT>]";
  EXPECT_TRUE(Contains(Content(), ">[thumb text:1<VANTORIUM_THUMB_DESCRIPTION>:1]</TD>")) << Content();
}

TEST_F(WrapperContentLine, WithUnknownPlacementsShowsTheImageAlone) {
  SetCaption(9, 0);
  SetDescription(9, 0);
  EXPECT_EQ(Content(), kImage);
}

}  // namespace
}  // namespace vantorium::tests
