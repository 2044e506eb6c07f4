#include "core/generation/PageParts.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

using PageParts = PageTest;

TEST_F(PageParts, AColorIsWrittenAsRedGreenBlueInSixDigits) {
  EXPECT_EQ(generation::ColorToHtml(0x000000), "000000");
  EXPECT_EQ(generation::ColorToHtml(0xFFFFFF), "FFFFFF");
  EXPECT_EQ(generation::ColorToHtml(0xA00000), "0000A0");
  EXPECT_EQ(generation::ColorToHtml(0x0000FF), "FF0000");
  EXPECT_EQ(generation::ColorToHtml(0x010B0C), "0C0B01");
  EXPECT_EQ(generation::ColorToHtml(0xFF123456), "563412");
}

TEST_F(PageParts, ABackdropRefersToItsCopyInTheImagesFolder) {
  const auto attribute = [&](const std::string& path,
                             generation::GenerationMode mode = generation::GenerationMode::Create) {
    project.textImageWrapperBackdrop = path;
    Prepare(mode);
    return generation::BackdropAttribute(run, core::kImages.backdrop);
  };
  EXPECT_EQ(attribute(""), "");
  EXPECT_EQ(attribute("C:\\pics\\Sand.GIF"), R"( BACKGROUND="Images/_backdrop_imagepage.GIF")");
  EXPECT_EQ(attribute("sand"), R"( BACKGROUND="Images/_backdrop_imagepage")");
  EXPECT_EQ(attribute("a.png", generation::GenerationMode::Preview), R"( BACKGROUND="images/_backdrop_imagepage.png")");
}

TEST_F(PageParts, ABodyWithColorsHasFiveWithoutHashes) {
  for (const core::PageColorFields& fields : {core::kThumbnails.colors, core::kImages.colors}) {
    core::GalleryProject settings;
    settings.*fields.use = 1;
    settings.*fields.background = 0xFFFFFF;
    settings.*fields.text = 0;
    settings.*fields.link = 0xA00000;
    settings.*fields.visitedLink = 1;
    settings.*fields.activeLink = 0xFF;
    EXPECT_EQ(generation::BodyTag(settings, fields, ""),
              R"(<BODY BGCOLOR="FFFFFF" TEXT="000000" LINK="0000A0" VLINK="010000" ALINK="FF0000">)");
    EXPECT_TRUE(
        generation::BodyTag(settings, fields, " BACKGROUND=\"b\"").ends_with(R"(ALINK="FF0000" BACKGROUND="b">)"));
  }
}

TEST_F(PageParts, ABodyWithoutColorsKeepsTheBlank) {
  for (const core::PageColorFields& fields : {core::kThumbnails.colors, core::kImages.colors}) {
    const core::GalleryProject settings;
    EXPECT_EQ(generation::BodyTag(settings, fields, ""), "<BODY >");
    EXPECT_EQ(generation::BodyTag(settings, fields, " BACKGROUND=\"b\""), R"(<BODY  BACKGROUND="b">)");
  }
}

TEST_F(PageParts, ARefreshHasDelayAndTarget) {
  EXPECT_EQ(generation::RefreshTag("5", "a b.htm"), R"(<META HTTP-EQUIV="REFRESH" CONTENT="5; URL=a b.htm">)");
}

}  // namespace
}  // namespace vantorium::tests
