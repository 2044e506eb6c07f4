#include "core/generation/DirectLinks.h"
#include "env/RuntimeFailure.h"
#include "tests/core/generation/PageFixture.h"

namespace vantorium::tests {
namespace {

class DirectLinks : public PageTest {
 protected:
  /// The links in short form: "~3" for the "..." link to page 3, "[4]" for a link, "5" for the page itself.
  std::string Short(const core::Digits& most, std::int32_t page, std::int32_t pageCount) {
    project.textPageLinksThumbnailMaxDirectLinks = most;
    run.ThumbnailPageCount = pageCount;
    std::string text = generation::BuildDirectLinks(run, page);
    for (std::int32_t number = pageCount; number >= 1; --number) {
      const std::string digits = std::to_string(number);
      const std::string open = R"(<A HREF="thumbpage_)" + digits + R"(.htm">)";
      text = env::ReplaceAll(text, open + digits + "</A>", "[" + digits + "]");
      text = env::ReplaceAll(text, open + "...</A>", "~" + digits);
    }
    return text;
  }
};

TEST_F(DirectLinks, ZeroListsEveryPage) {
  EXPECT_EQ(Short("0", 2, 4), "[1] 2 [3] [4]");
  EXPECT_EQ(Short("-3", 1, 3), "1 [2] [3]");
  EXPECT_EQ(Short("0", 3, 3), "[1] [2] 3");
}

TEST_F(DirectLinks, OneLinkIsThePageItself) {
  for (const core::Digits most : {"0", "1", "2", "5"}) EXPECT_EQ(Short(most, 1, 1), "1") << most;
}

TEST_F(DirectLinks, AnEvenNumberOfLinksHasOneMoreAfterThePage) {
  EXPECT_EQ(Short("4", 5, 20), "~3 [4] 5 [6] [7] ~8");
  EXPECT_EQ(Short("2", 5, 20), "~4 5 [6] ~7");
}

TEST_F(DirectLinks, AnOddNumberOfLinksIsCenteredOnThePage) {
  EXPECT_EQ(Short("5", 10, 20), "~7 [8] [9] 10 [11] [12] ~13");
  EXPECT_EQ(Short("1", 5, 20), "~4 5 ~6");
}

TEST_F(DirectLinks, AtTheStartTheRangeGrowsToTheRight) {
  EXPECT_EQ(Short("5", 1, 20), "1 [2] [3] [4] [5] ~6");
  EXPECT_EQ(Short("4", 1, 20), "1 [2] [3] [4] ~5");
  EXPECT_EQ(Short("1", 1, 20), "1 ~2");
}

TEST_F(DirectLinks, AtTheEndTheRangeGrowsToTheLeft) {
  EXPECT_EQ(Short("5", 20, 20), "~15 [16] [17] [18] [19] 20");
  EXPECT_EQ(Short("4", 19, 20), "~16 [17] [18] 19 [20]");
}

TEST_F(DirectLinks, ANumberAboveThePageCountListsAllPages) {
  EXPECT_EQ(Short("9", 2, 3), "[1] 2 [3]");
  EXPECT_EQ(Short("2147483647", 2, 3), "[1] 2 [3]");
  EXPECT_EQ(Short("3", 2, 3), "[1] 2 [3]");
}

TEST_F(DirectLinks, ANumberIsRoundedHalfToEven) {
  EXPECT_EQ(Short("0.5", 1, 3), "1 [2] [3]");
  EXPECT_EQ(Short("2.5", 2, 4), "~1 2 [3] ~4");
}

TEST_F(DirectLinks, LinksUseTheProjectsNames) {
  project.textThumbnailPageSettingsFilePrefix = "p";
  project.comboThumbnailPageSettingsFileExtension = ".html";
  project.textPageLinksThumbnailMaxDirectLinks = "1";
  run.ThumbnailPageCount = 3;
  EXPECT_EQ(generation::BuildDirectLinks(run, 2), R"(<A HREF="p1.html">...</A> 2 <A HREF="p3.html">...</A>)");
}

TEST_F(DirectLinks, TheCheckBoxIsIgnored) {
  project.checkPageLinksThumbnailDirectLinks = 0;
  EXPECT_EQ(Short("0", 1, 2), "1 [2]");
}

TEST_F(DirectLinks, ATextThatIsNotANumberIsATypeMismatch) {
  for (const core::Digits text : {"", "x", "5 pages"}) {
    try {
      ADD_FAILURE() << text << " gave " << Short(text, 1, 3);
    } catch (const env::RuntimeFailure& failure) {
      EXPECT_EQ(failure.Number(), static_cast<std::int32_t>(env::FailureKind::TypeMismatch)) << text;
    }
  }
}

TEST_F(DirectLinks, ANumberBeyond32BitsIsAnOverflow) {
  EXPECT_THROW((void)Short("2147483648", 1, 3), env::RuntimeFailure);
}

}  // namespace
}  // namespace vantorium::tests
