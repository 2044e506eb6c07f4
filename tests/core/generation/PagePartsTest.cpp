#include "core/generation/PageParts.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

using PageParts = PageTest;

TEST_F(PageParts, AColorIsRedGreenBlueInSixDigits) {
  EXPECT_EQ(ColorToHtml(0x000000), "000000");
  EXPECT_EQ(ColorToHtml(0xFFFFFF), "FFFFFF");
  EXPECT_EQ(ColorToHtml(0xA00000), "0000A0");
  EXPECT_EQ(ColorToHtml(0x0000FF), "FF0000");
  EXPECT_EQ(ColorToHtml(0x010B0C), "0C0B01");
  EXPECT_EQ(ColorToHtml(0xFF123456), "563412");
}

TEST_F(PageParts, ABackdropIsItsCopyInTheImagesFolder) {
  Prepare();
  EXPECT_EQ(BackdropAttribute(run, "_backdrop_x", ""), "");
  EXPECT_EQ(BackdropAttribute(run, "_backdrop_x", "C:\\pics\\Sand.GIF"), R"( BACKGROUND="Images/_backdrop_x.GIF")");
  EXPECT_EQ(BackdropAttribute(run, "_backdrop_x", "sand"), R"( BACKGROUND="Images/_backdrop_x")");
  Prepare(GenerationMode::Preview);
  EXPECT_EQ(BackdropAttribute(run, "_backdrop_x", "a.png"), R"( BACKGROUND="images/_backdrop_x.png")");
}

TEST_F(PageParts, ABodyWithColorsHasFiveOfThemWithoutHashes) {
  const PageColors colors{.background = 0xFFFFFF, .text = 0, .link = 0xA00000, .visitedLink = 1, .activeLink = 0xFF};
  EXPECT_EQ(BodyTag(colors, ""),
            R"(<BODY BGCOLOR="FFFFFF" TEXT="000000" LINK="0000A0" VLINK="010000" ALINK="FF0000">)");
  EXPECT_TRUE(BodyTag(colors, " BACKGROUND=\"b\"").ends_with(R"(ALINK="FF0000" BACKGROUND="b">)"));
}

TEST_F(PageParts, ABodyWithoutColorsKeepsItsBlank) {
  EXPECT_EQ(BodyTag(""), "<BODY >");
  EXPECT_EQ(BodyTag(" BACKGROUND=\"b\""), R"(<BODY  BACKGROUND="b">)");
}

TEST_F(PageParts, ARefreshNamesDelayAndTarget) {
  EXPECT_EQ(RefreshTag("5", "a b.htm"), R"(<META HTTP-EQUIV="REFRESH" CONTENT="5; URL=a b.htm">)");
}

}  // namespace
}  // namespace vantorium::tests
