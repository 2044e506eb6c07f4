#include "core/generation/PageLinks.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class PageLinks : public PageTest {
 protected:
  PageLinks() {
    AddImages(4);
    SetGrid("1", "2");
    Prepare();
  }

  std::string Anchor(int kind, std::int32_t current, std::int32_t total) const {
    return generation::BuildLinkAnchor(run, static_cast<core::LinkKind>(kind), current, total);
  }
  std::string Graphic(int kind, std::int32_t current, std::int32_t total) const {
    return generation::BuildLinkGraphic(run, static_cast<core::LinkKind>(kind), current, total);
  }
};

TEST_F(PageLinks, AnchorsOfImagesLinkToWrapperPages) {
  EXPECT_EQ(Anchor(0, 3, 4), R"(<A HREF="img1.htm">)");
  EXPECT_EQ(Anchor(1, 3, 4), R"(<A HREF="img2.htm">)");
  EXPECT_EQ(Anchor(2, 3, 4), R"(<A HREF="img4.htm">)");
  EXPECT_EQ(Anchor(3, 2, 4), R"(<A HREF="img4.htm">)");
  project.checkImageWrapperUse = 0;
  EXPECT_EQ(Anchor(0, 3, 4), R"(<A HREF="img1.htm">)");
}

TEST_F(PageLinks, AnchorsOfPagesLinkToThumbnailPages) {
  EXPECT_EQ(Anchor(5, 3, 9), R"(<A HREF="thumbpage_1.htm">)");
  EXPECT_EQ(Anchor(6, 3, 9), R"(<A HREF="thumbpage_2.htm">)");
  EXPECT_EQ(Anchor(7, 3, 9), R"(<A HREF="thumbpage_4.htm">)");
  EXPECT_EQ(Anchor(8, 3, 9), R"(<A HREF="thumbpage_9.htm">)");
}

TEST_F(PageLinks, AnchorsUseTheProjectsNames) {
  project.textThumbnailPageSettingsFilePrefix = "";
  project.comboThumbnailPageSettingsFileExtension = ".shtml";
  project.comboImageWrapperSettingsFileExtension = ".html";
  EXPECT_EQ(Anchor(7, 3, 9), R"(<A HREF="4.shtml">)");
  EXPECT_EQ(Anchor(2, 3, 4), R"(<A HREF="img4.html">)");
  EXPECT_EQ(Anchor(4, 3, 4), R"(<A HREF="2.shtml#img3">)");
}

TEST_F(PageLinks, AnchorsAreEmptyOnlyAtTheirEnd) {
  for (const int kind : {0, 1, 5, 6}) {
    EXPECT_EQ(Anchor(kind, 1, 4), "") << kind;
    EXPECT_NE(Anchor(kind, 4, 4), "") << kind;
  }
  for (const int kind : {2, 3, 7, 8}) {
    EXPECT_EQ(Anchor(kind, 4, 4), "") << kind;
    EXPECT_NE(Anchor(kind, 1, 4), "") << kind;
  }
}

TEST_F(PageLinks, WithATotalOfOneOnlyTheIndexHasAnAnchor) {
  for (const int kind : {0, 1, 2, 3, 5, 6, 7, 8}) {
    EXPECT_EQ(Anchor(kind, 1, 1), "") << kind;
    EXPECT_EQ(Anchor(kind, 2, 1), "") << kind;
  }
  EXPECT_EQ(Anchor(4, 1, 1), R"(<A HREF="thumbpage_1.htm#img1">)");
}

TEST_F(PageLinks, TheIndexLinksToThePlaceOfTheImageOnItsPage) {
  EXPECT_EQ(Anchor(4, 1, 4), R"(<A HREF="thumbpage_1.htm#img1">)");
  EXPECT_EQ(Anchor(4, 2, 4), R"(<A HREF="thumbpage_1.htm#img2">)");
  EXPECT_EQ(Anchor(4, 4, 4), R"(<A HREF="thumbpage_2.htm#img4">)");
}

struct GraphicCase {
  int kind;
  core::LinkSettings core::GalleryProject::*link;
  std::string first;  // at 1 of 4
  std::string middle;
  std::string last;  // at 4 of 4
};

const GraphicCase kGraphicCases[] = {
    {0, &core::GalleryProject::ImageFirstLink, "_imagelink_first_first.end", "_imagelink_first.usual",
     "_imagelink_first.usual"},
    {1, &core::GalleryProject::ImagePreviousLink, "_imagelink_previous_first.end", "_imagelink_previous.usual",
     "_imagelink_previous.usual"},
    {2, &core::GalleryProject::ImageNextLink, "_imagelink_next.usual", "_imagelink_next.usual",
     "_imagelink_next_last.end"},
    {3, &core::GalleryProject::ImageLastLink, "_imagelink_last.usual", "_imagelink_last.usual",
     "_imagelink_last_last.end"},
    {4, &core::GalleryProject::ImageIndexLink, "_imagelink_index.usual", "_imagelink_index.usual",
     "_imagelink_index.usual"},
    {5, &core::GalleryProject::ThumbnailFirstLink, "_thumblink_first_first.end", "_thumblink_first.usual",
     "_thumblink_first.usual"},
    {6, &core::GalleryProject::ThumbnailPreviousLink, "_thumblink_previous_first.end", "_thumblink_previous.usual",
     "_thumblink_previous.usual"},
    {7, &core::GalleryProject::ThumbnailNextLink, "_thumblink_next.usual", "_thumblink_next.usual",
     "_thumblink_next_last.end"},
    {8, &core::GalleryProject::ThumbnailLastLink, "_thumblink_last.usual", "_thumblink_last.usual",
     "_thumblink_last_last.end"},
};

TEST_F(PageLinks, GraphicsOfEachKindHaveTheirNameAndTheExtensionOfTheirFile) {
  const auto tag = [](const std::string& name) {
    return R"(<IMG SRC="Images/)" + name + R"(" BORDER="0" ALIGN="MIDDLE">)";
  };
  for (const GraphicCase& each : kGraphicCases) {
    (project.*each.link).textLinkGraphic = "C:\\a.b\\button.usual";
    (project.*each.link).textLinkGraphicDisabled = "grey.end";
    EXPECT_EQ(Graphic(each.kind, 1, 4), tag(each.first));
    EXPECT_EQ(Graphic(each.kind, 2, 4), tag(each.middle));
    EXPECT_EQ(Graphic(each.kind, 4, 4), tag(each.last));
    EXPECT_EQ(Graphic(each.kind, 1, 1), "");
    EXPECT_EQ(&generation::LinkOf(project, static_cast<core::LinkKind>(each.kind)), &(project.*each.link));
  }
}

TEST_F(PageLinks, AnEmptyDisabledGraphicGivesANameWithoutExtension) {
  project.ImageFirstLink.textLinkGraphic = "first.gif";
  EXPECT_EQ(Graphic(0, 1, 4), R"(<IMG SRC="Images/_imagelink_first_first" BORDER="0" ALIGN="MIDDLE">)");
}

TEST_F(PageLinks, GraphicsAreInTheFolderOfTheSettingEvenInAPreview) {
  Prepare(generation::GenerationMode::Preview);
  project.textImageSettingsSubFolder = "Pics\\Big";
  EXPECT_EQ(Graphic(1, 2, 4), R"(<IMG SRC="Pics/Big/_imagelink_previous" BORDER="0" ALIGN="MIDDLE">)");
  project.textImageSettingsSubFolder = "Pics/";
  EXPECT_EQ(Graphic(1, 2, 4), R"(<IMG SRC="Pics/_imagelink_previous" BORDER="0" ALIGN="MIDDLE">)");
  project.textImageSettingsSubFolder = "";
  EXPECT_EQ(Graphic(1, 2, 4), R"(<IMG SRC="/_imagelink_previous" BORDER="0" ALIGN="MIDDLE">)");
}

TEST_F(PageLinks, ThePageOfAnImageIsItsNumberDividedByThePageSize) {
  SetGrid("5", "5");
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 1), 1);
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 25), 1);
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 26), 2);
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 100'000), 4000);
}

TEST_F(PageLinks, TheProductOfRowsAndColumnsIsRoundedHalfToEven) {
  SetGrid("2.5", "1");
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 3), 2);
  SetGrid("3.5", "1");
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 4), 1);
  EXPECT_EQ(generation::ThumbnailPageOfImage(project, 5), 2);
}

TEST_F(PageLinks, AGridWithoutCellsIsADivisionByZero) {
  for (const auto& [rows, columns] :
       std::vector<std::pair<core::Digits, core::Digits>>{{"0", "5"}, {"5", "0"}, {"", "5"}, {"x", "5"}}) {
    SetGrid(rows, columns);
    try {
      ADD_FAILURE() << rows << " x " << columns << " gave " << generation::ThumbnailPageOfImage(project, 1);
    } catch (const env::RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), 11);
      EXPECT_EQ(failure.Description(), "Division by zero");
    }
    EXPECT_THROW((void)Anchor(4, 1, 4), env::RuntimeFailure);
    EXPECT_EQ(Anchor(0, 2, 4), R"(<A HREF="img1.htm">)");
  }
}

}  // namespace
}  // namespace vantorium::tests
