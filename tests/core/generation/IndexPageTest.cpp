#include "core/generation/IndexPage.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class IndexPage : public PageTest {
 protected:
  IndexPage() {
    AddImages(2);
    project.comboImageFrameName = "image_frame";
    Prepare();
  }

  std::string LineOf(const std::string& start) const {
    return LineStartingWith(generation::BuildIndexPage(run), start);
  }
  std::string Frameset() const { return LineOf("<FRAMESET"); }
};

TEST_F(IndexPage, WithASingleFrameIsAFramesetWithOneFrame) {
  EXPECT_EQ(generation::BuildIndexPage(run),
            Lines({"<HTML>", "", "<HEAD>", "<TITLE>Holidays</TITLE>",
                   R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)",
                   "<!-- BEGIN USER DEFINED HEAD CODE -->", "", "<!-- END USER DEFINED HEAD CODE -->", "</HEAD>", "",
                   R"(<FRAMESET ROWS="100%,*" BORDER="0">)",
                   R"(<FRAME NAME="thumb_frame" SRC="thumbpage_1.htm" NORESIZE FRAMEBORDER="0">)", "</FRAMESET>",
                   "</HTML>"}));
}

TEST_F(IndexPage, AFrameMayBeAsWideAsItsFieldAllows) {
  project.comboGalleryLayoutType = 1;
  project.ThumbnailFrameSize = 99999;
  EXPECT_EQ(Frameset(), R"(<FRAMESET COLS="99999,*" BORDER="0" >)");
}

TEST_F(IndexPage, WithTwoFramesHasThemInOrder) {
  project.comboGalleryLayoutType = 1;
  EXPECT_EQ(
      generation::BuildIndexPage(run),
      Lines({"<HTML>", "", "<HEAD>", "<TITLE>Holidays</TITLE>",
             R"(<META NAME="GENERATOR" CONTENT="Vantorium Image Gallery Creator 3.0">)",
             "<!-- BEGIN USER DEFINED HEAD CODE -->", "", "<!-- END USER DEFINED HEAD CODE -->", "</HEAD>", "",
             R"(<FRAMESET COLS="200,*" BORDER="0" >)",
             R"(<FRAME NAME="thumb_frame" SRC="thumbpage_1.htm"  NORESIZE  FRAMEBORDER="0" >)",
             R"(<FRAME NAME="image_frame" SRC="img1.htm"  NORESIZE  FRAMEBORDER="0" >)", "</FRAMESET>", "</HTML>"}));
}

struct LayoutCase {
  core::Choice layout;
  std::string thumbnailsSized;
  std::string imageSized;
  bool imageFirst;
};

const LayoutCase kLayouts[] = {
    {1, R"(COLS="150,*")", R"(COLS="*,80")", false},
    {2, R"(COLS="*,150")", R"(COLS="80,*")", true},
    {3, R"(ROWS="150,*")", R"(ROWS="*,80")", false},
    {4, R"(ROWS="*,150")", R"(ROWS="80,*")", true},
};

TEST_F(IndexPage, LayoutAndPrioritySetOrderAndSizes) {
  project.ThumbnailFrameSize = 150;
  project.ImageFrameSize = 80;
  for (const LayoutCase& each : kLayouts) {
    project.comboGalleryLayoutType = each.layout;
    project.comboGalleryFrameSizingPriority = 0;
    EXPECT_EQ(Frameset(), "<FRAMESET " + each.thumbnailsSized + R"( BORDER="0" >)");
    project.comboGalleryFrameSizingPriority = 1;
    EXPECT_EQ(Frameset(), "<FRAMESET " + each.imageSized + R"( BORDER="0" >)");
    const std::string page = generation::BuildIndexPage(run);
    EXPECT_EQ(page.find("NAME=\"image_frame\"") < page.find("NAME=\"thumb_frame\""), each.imageFirst) << each.layout;
    EXPECT_EQ(CountOf(page, "<FRAME "), 2U);
  }
}

TEST_F(IndexPage, SizesInPercentHaveAPercentSign) {
  project.comboGalleryLayoutType = 2;
  project.comboGalleryFrameSizingPriority = 1;
  project.ImageFrameSize = 80;
  project.checkGalleryFrameSizeInPercent = 1;
  EXPECT_EQ(Frameset(), R"(<FRAMESET COLS="80%,*" BORDER="0" >)");
}

TEST_F(IndexPage, OmittedAttributesLeaveTheirBlanks) {
  project.comboGalleryLayoutType = 1;
  const std::string start = R"(<FRAME NAME="image_frame" SRC="img1.htm" )";
  project.checkGalleryFramesDisplayBorders = 1;
  EXPECT_EQ(LineOf(start), start + " NORESIZE >");
  EXPECT_EQ(Frameset(), R"(<FRAMESET COLS="200,*">)");
  project.checkGalleryFramesResizable = 1;
  EXPECT_EQ(LineOf(start), start + ">");
  project.checkGalleryFramesDisplayBorders = 0;
  EXPECT_EQ(LineOf(start), start + R"( FRAMEBORDER="0" >)");
}

TEST_F(IndexPage, TheImageFrameShowsTheFirstImage) {
  project.comboGalleryLayoutType = 1;
  const std::string start = R"(<FRAME NAME="image_frame" SRC=")";
  EXPECT_TRUE(LineOf(start).starts_with(start + "img1.htm\""));
  project.checkImageWrapperUse = 0;
  EXPECT_TRUE(LineOf(start).starts_with(start + "Images/img1.JPG\""));
  run.mode = generation::GenerationMode::Publish;
  EXPECT_TRUE(LineOf(start).starts_with(start + "Images/img1.JPG\""));
  Prepare(generation::GenerationMode::Preview);
  EXPECT_TRUE(LineOf(start).starts_with(start + "file:///home/anna/Photos/img1.JPG\"")) << LineOf(start);
}

TEST_F(IndexPage, ASlideShowMayBeginWithTheFirstImageEvenWithoutWrapperPages) {
  const std::string start = R"(<FRAME NAME="thumb_frame" SRC=")";
  project.checkGallerySlideShow = 1;
  project.comboGallerySlideShowBeginWith = 1;
  EXPECT_TRUE(LineOf(start).starts_with(start + "img1.htm\""));
  project.checkImageWrapperUse = 0;
  EXPECT_TRUE(LineOf(start).starts_with(start + "img1.htm\""));
  project.comboGallerySlideShowBeginWith = 0;
  EXPECT_TRUE(LineOf(start).starts_with(start + "thumbpage_1.htm\""));
  project.comboGallerySlideShowBeginWith = 1;
  project.checkGallerySlideShow = 0;
  EXPECT_TRUE(LineOf(start).starts_with(start + "thumbpage_1.htm\""));
}

TEST_F(IndexPage, ASlideShowDoesNotChangeTwoFrames) {
  project.comboGalleryLayoutType = 3;
  const std::string without = generation::BuildIndexPage(run);
  project.checkGallerySlideShow = 1;
  project.comboGallerySlideShowBeginWith = 1;
  EXPECT_EQ(generation::BuildIndexPage(run), without);
}

TEST_F(IndexPage, HeadCodeIsExpandedWithoutImageOrPage) {
  project.GalleryHeadCode =
      "<VANTORIUM_GALLERY_TITLE> <VANTORIUM_IMAGE_COUNT> <VANTORIUM_IMAGE_INDEX> <VANTORIUM_THUMBPAGE_INDEX> "
      "<VANTORIUM_IMAGE_DESCRIPTION>";
  EXPECT_TRUE(Contains(generation::BuildIndexPage(run),
                       "\r\nHolidays 2 <VANTORIUM_IMAGE_INDEX> <VANTORIUM_THUMBPAGE_INDEX> "
                       "<VANTORIUM_IMAGE_DESCRIPTION>\r\n"));
}

TEST_F(IndexPage, TheTitleIsNeitherEscapedNorExpanded) {
  project.textGalleryTitle = "A & B <VANTORIUM_IMAGE_COUNT> {}";
  EXPECT_EQ(LineOf("<TITLE>"), "<TITLE>A & B <VANTORIUM_IMAGE_COUNT> {}</TITLE>");
}

TEST_F(IndexPage, WithoutImagesOnlyAReferenceToTheFirstIsAFailure) {
  images.Clear();
  EXPECT_NO_THROW((void)generation::BuildIndexPage(run));
  project.comboGalleryLayoutType = 1;
  EXPECT_THROW((void)generation::BuildIndexPage(run), env::RuntimeFailure);
}

}  // namespace
}  // namespace vantorium::tests
