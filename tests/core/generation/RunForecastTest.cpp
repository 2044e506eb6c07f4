#include "core/generation/RunForecast.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

class RunForecastTest : public RunFixture {
 protected:
  [[nodiscard]] Findings Find(const RunOrder& order) const { return ForecastRun(project, order, environment); }
  [[nodiscard]] Lines LinesFor(const RunOrder& order) const {
    Lines lines;
    for (const Finding& finding : Find(order)) lines.push_back(LineOf(finding));
    return lines;
  }
  [[nodiscard]] Lines LinesToCreate() const { return LinesFor(OrderToCreate()); }
  void UseWrapperPages(bool use) { project.settings.checkImageWrapperUse = core::FlagOf(use); }
};

TEST_F(RunForecastTest, AnOrdinaryGalleryHasNoFindings) {
  for (const char* name : {"a", "Lake in May", "R&D", "\xC3\xA4pfel"}) AddPhotograph(name);
  folder.Write("project/back.gif", "GIF");
  project.settings.textThumbnailsPageBackdrop = "back.gif";
  project.settings.ImageNextLink.textLinkGraphic = "back.gif";
  EXPECT_EQ(LinesToCreate(), Lines{});
  ASSERT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_EQ(LinesToCreate(), Lines{}) << "the same for a second run";
}

TEST_F(RunForecastTest, ANameThatMakesDeadLinksIsReportedOnce) {
  AddPhotograph("a");
  AddPhotograph("b#1");
  UseWrapperPages(true);
  EXPECT_EQ(LinesToCreate(), Lines{"Image 2, \"b#1\": Links to \"b#1.htm\" would not work: in a link, what follows "
                                   "\"#\" is a place in a page."});
  UseWrapperPages(false);
  EXPECT_EQ(LinesToCreate(), Lines{"Image 2, \"b#1\": Links to \"b#1.jpg\" would not work: in a link, what follows "
                                   "\"#\" is a place in a page."});
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].kind, FindingKind::DeadLink);
  EXPECT_EQ(findings[0].image, 2U);
  EXPECT_EQ(findings[0].name, "b#1");
  EXPECT_TRUE(findings[0].IsAboutName());
}

TEST_F(RunForecastTest, AnExtensionCanMakeDeadLinksToo) {
  folder.Write("photos/a.jp%67", "x");
  AddEntry("a", "T:\\photos\\a.jp%67");
  EXPECT_EQ(LinesToCreate(), Lines{"Image 1, \"a\": Links to \"a.jp%67\" would not work: in a link, \"%\" begins a "
                                   "coded character."});
}

TEST_F(RunForecastTest, ANameThatNoFileCanHaveIsReported) {
  folder.Write("photos/a.jpg", PlainJpeg(8, 8));
  for (const char* name : {"a/b", "a\\b"}) AddEntry(name, "T:\\photos\\a.jpg");
  const Lines lines = LinesToCreate();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0], "Image 1, \"a/b\": Links to \"a/b.htm\" would not work: no file can have it.");
}

TEST_F(RunForecastTest, ANameThatIsTooLongForAFileIsFound) {
  folder.Write("photos/a.jpg", PlainJpeg(8, 8));
  const std::string fits(255 - std::string("thumb_.jpg").size(), 'x');
  for (const std::string& name : {fits, "y" + fits}) AddEntry(name, "T:\\photos\\a.jpg");
  EXPECT_EQ(LinesToCreate(), Lines{"Image 2, \"y" + fits + "\": Links to \"thumb_y" + fits +
                                   ".jpg\" would not work: no file can have such a long name."});
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  project.images.Remove(2);
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
}

TEST_F(RunForecastTest, LeadingBlanksAndColonsMatterOnlyForPages) {
  AddPhotograph(" a");
  AddPhotograph("Evening:1");
  UseWrapperPages(true);
  EXPECT_EQ(LinesToCreate().size(), 2U);
  UseWrapperPages(false);
  EXPECT_EQ(LinesToCreate(), Lines{});
}

TEST_F(RunForecastTest, ALeadingApostropheMattersInASlideShow) {
  AddPhotograph("'a");
  UseWrapperPages(true);
  EXPECT_EQ(LinesToCreate(), Lines{});
  project.settings.checkGallerySlideShow = 1;
  EXPECT_EQ(LinesToCreate().size(), 1U);
}

TEST_F(RunForecastTest, WithoutPagesThereAreNoDeadLinks) {
  AddPhotograph("a#");
  RunOrder order = OrderToCreate();
  order.CreateHTML = false;
  EXPECT_EQ(LinesFor(order), Lines{});
}

TEST_F(RunForecastTest, DeadLinksFromSettingsBelongToNoImage) {
  AddPhotograph("a");
  AddPhotograph("b");
  project.settings.textThumbnailPageSettingsFilePrefix = "page#";
  project.settings.textImageSettingsSubFolder = "50% \\x";
  project.settings.textThumbnailImageSettingsSubFolder = " t";
  project.settings.textThumbnailImageSettingsFilePrefix = "t?";
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), 4U);
  EXPECT_EQ(LineOf(findings[0]),
            "Links to \"page#1.htm\" would not work: in a link, what follows \"#\" is a place in a page.");
  EXPECT_EQ(LineOf(findings[1]), "Links to \"50% /x/\" would not work: in a link, \"%\" begins a coded character.");
  EXPECT_EQ(LineOf(findings[2]), "Links to \" t/\" would not work: a blank at its beginning is left out of a link.");
  EXPECT_EQ(LineOf(findings[3]),
            "Links to \"t?1.jpg\" would not work: in a link, what follows \"?\" is not part of the name.");
  for (const Finding& finding : findings) EXPECT_FALSE(finding.IsAboutName());
}

TEST_F(RunForecastTest, NamesThatDifferOnlyInCaseAreReportedForTheLaterImage) {
  AddPhotograph("Lake");
  AddPhotograph("hill");
  AddPhotograph("LAKE");
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].kind, FindingKind::SharedName);
  EXPECT_EQ(LineOf(findings[0]),
            "Image 3, \"LAKE\": \"Lake.htm\" and \"LAKE.htm\" are the same file where upper and lower case do not "
            "matter.");
}

TEST_F(RunForecastTest, NamesOfPagesAndGraphicsAreShared) {
  folder.Write("project/back.jpg", "x");
  project.settings.textThumbnailsPageBackdrop = "back.jpg";
  UseWrapperPages(true);
  AddPhotograph("INDEX");
  AddPhotograph("thumbpage_1");
  AddPhotograph("_BACKDROP_thumbpage");
  EXPECT_EQ(LinesToCreate(),
            (Lines{"Image 1, \"INDEX\": \"index.htm\" and \"INDEX.htm\" are the same file where upper and lower case "
                   "do not matter.",
                   "Image 2, \"thumbpage_1\": Two files of the gallery would be \"thumbpage_1.htm\".",
                   "Image 3, \"_BACKDROP_thumbpage\": \"Images/_backdrop_thumbpage.jpg\" and "
                   "\"Images/_BACKDROP_thumbpage.jpg\" are the same file where upper and lower case do not matter."}));
  UseWrapperPages(false);
  EXPECT_EQ(LinesToCreate().size(), 1U) << "images have their own folder";
}

TEST_F(RunForecastTest, WithoutAPrefixAThumbnailSharesTheNameOfAnImageInItsFolder) {
  AddPhotograph("a");
  project.settings.textThumbnailImageSettingsSubFolder = "images";
  EXPECT_EQ(LinesToCreate(), Lines{});
  project.settings.textThumbnailImageSettingsFilePrefix = "";
  EXPECT_EQ(LinesToCreate().size(), 1U);
  RunOrder order = OrderToCreate();
  order.CreateThumbnails = false;
  EXPECT_EQ(LinesFor(order), Lines{}) << "only files of this run count";
}

TEST_F(RunForecastTest, AnIndexFileNamedLikeAThumbnailPageBelongsToNoImage) {
  AddPhotograph("a");
  RunOrder order = OrderToCreate();
  order.IndexFileName = "ThumbPage_1.htm";
  const Findings findings = Find(order);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].image, 0U);
}

TEST_F(RunForecastTest, UnreadableSourcesAreReported) {
  AddPhotograph("a");
  AddEntry("gone", "T:\\photos\\gone.jpg");
  AddEntry("elsewhere", "D:\\photos\\a.jpg");
  fs::create_directory(folder.Path() / "photos/folder.jpg");
  AddEntry("folder", "T:\\photos\\folder.jpg");
  fs::create_symlink("nowhere", folder.Path() / "photos/link.jpg");
  AddEntry("link", "T:\\photos\\link.jpg");
  fs::create_symlink("a.jpg", folder.Path() / "photos/good.jpg");
  AddEntry("good", "T:\\photos\\good.jpg");
  project.settings.textThumbnailsPageBackdrop = "T:\\back.gif";
  EXPECT_EQ(LinesToCreate(), (Lines{"The file \"T:\\back.gif\" cannot be read.",
                                    "Image 2, \"gone\": The file \"T:\\photos\\gone.jpg\" cannot be read.",
                                    "Image 3, \"elsewhere\": The file \"D:\\photos\\a.jpg\" cannot be read.",
                                    "Image 4, \"folder\": The file \"T:\\photos\\folder.jpg\" cannot be read.",
                                    "Image 5, \"link\": The file \"T:\\photos\\link.jpg\" cannot be read."}));
  for (const Finding& finding : Find(OrderToCreate())) {
    EXPECT_EQ(finding.kind, FindingKind::MissingSource);
    EXPECT_FALSE(finding.IsAboutName()) << "another name does not help";
  }
}

TEST_F(RunForecastTest, ASourceThatTheRunWouldReplaceIsReported) {
  folder.Write("out/Images/a.jpg", PlainJpeg(64, 64));
  AddEntry("a", "T:\\out\\Images\\a.jpg");
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].kind, FindingKind::OverwrittenSource);
  EXPECT_EQ(LineOf(findings[0]),
            "Image 1, \"a\": The gallery would replace \"T:\\out\\Images\\a.jpg\", which it is made from.");
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << "the run fails, as forecast";
}

TEST_F(RunForecastTest, ASourceThatTheRunDoesNotChangeIsNotReported) {
  folder.Write("out/Images/a.jpg", PlainJpeg(64, 64));
  AddEntry("a", "T:\\out\\Images\\a.jpg");
  RunOrder order = OrderToCreate();
  order.Overwrite = false;
  EXPECT_EQ(LinesFor(order), Lines{});
  order = OrderToCreate();
  order.CreateImages = false;
  EXPECT_EQ(LinesFor(order), Lines{});
  project.settings.checkImageWrapperImageKeepSize = 1;
  EXPECT_EQ(LinesToCreate(), Lines{}) << "a copy onto itself";
  project.settings.ImageWatermark.checkUseWatermark = 1;
  EXPECT_EQ(LinesToCreate().size(), 1U) << "with a watermark it is not a copy";
}

TEST_F(RunForecastTest, AProjectThatAPageWouldReplaceIsReported) {
  AddPhotograph("a");
  project.ProjectFolder = "T:\\out";
  project.ProjectFileName = "index.htm";
  folder.Write("out/index.htm", "the project");
  EXPECT_EQ(LinesToCreate(), Lines{"The gallery would replace \"T:\\out\\index.htm\", which it is made from."});
}

TEST_F(RunForecastTest, AnImageHasOneFindingOfEachKind) {
  AddEntry("a#", "T:\\gone.jpg");
  AddEntry("A#", "T:\\gone.jpg");
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), 5U);
  EXPECT_EQ(findings[2].kind, FindingKind::DeadLink);
  EXPECT_EQ(findings[3].kind, FindingKind::SharedName);
  EXPECT_EQ(findings[4].kind, FindingKind::MissingSource);
  for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(findings[i].image, 2U);
}

TEST_F(RunForecastTest, OnlyCreateAndPublishHaveFindings) {
  AddEntry("a#", "T:\\gone.jpg");
  for (const GenerationMode mode : {GenerationMode::Create, GenerationMode::Publish}) {
    EXPECT_EQ(Find(OrderFor(mode, "T:\\temp\\")).size(), 2U);
  }
  for (const GenerationMode mode : {GenerationMode::Preview, GenerationMode::Upload}) {
    EXPECT_TRUE(Find(OrderFor(mode, "T:\\temp\\")).empty());
  }
}

TEST_F(RunForecastTest, AForecastIsRenewedAfterAChange) {
  AddPhotograph("a#");
  AddPhotograph("b");
  const RunOrder order = OrderToCreate();
  RunForecast forecast(project, order, environment);
  EXPECT_EQ(forecast.Found().size(), 1U);
  project.images.Rename(1, "B");
  forecast.Renew();
  ASSERT_EQ(forecast.Found().size(), 1U);
  EXPECT_EQ(forecast.Found()[0].kind, FindingKind::SharedName);
  project.images.Rename(1, "c");
  forecast.Renew();
  EXPECT_TRUE(forecast.Found().empty());
}

TEST_F(RunForecastTest, TenThousandImagesAreCheckedWithoutWriting) {
  constexpr std::size_t kImages = 10'000;
  folder.Write("photos/a.jpg", PlainJpeg(8, 8));
  for (std::size_t i = 1; i <= kImages; ++i) {
    AddEntry((i % 100 == 0 ? "50%_" : "n_") + std::to_string(i), "T:\\photos\\a.jpg");
  }
  const Findings findings = Find(OrderToCreate());
  ASSERT_EQ(findings.size(), kImages / 100);
  EXPECT_EQ(findings.back().image, kImages);
  EXPECT_FALSE(fs::exists(folder.Path() / "out"));
}

}  // namespace
}  // namespace vantorium::generation
