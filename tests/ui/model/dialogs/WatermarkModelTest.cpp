#include "env/RuntimeFailure.h"
#include "image/Resample.h"
#include "image/Watermark.h"
#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/SampleFakes.h"
#include "tests/fakes/ScriptedCommonDialogs.h"
#include "ui/model/dialogs/FontModel.h"
#include "ui/model/dialogs/WatermarkModel.h"

#include <limits>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// Records the last measured font.
class FontRecordingRaster : public fakes::BoxTextRaster {
 public:
  using BoxTextRaster::BoxTextRaster;

  [[nodiscard]] image::TextExtent Measure(const image::LogFont& font, std::string_view text,
                                          image::TextForm form) const override {
    last = font;
    return BoxTextRaster::Measure(font, text, form);
  }

  mutable image::LogFont last;
};

class WatermarkDialog : public testing::Test {
 protected:
  std::unique_ptr<WatermarkModel> Opened(const image::WatermarkSettings& settings, std::int16_t quality = 85) {
    auto model = std::make_unique<WatermarkModel>(settings, quality, sources, harness.Ports(),
                                                  WatermarkPorts{dialogs, texts, screen}, box);
    model->Open();
    return model;
  }

  std::string Expected(const image::WatermarkSettings& settings, int quality) {
    image::cDIBSection source;
    EXPECT_TRUE(image::LoadJPEGImage(source, *harness.paths.ToNative(sources.selectedFile)));
    const auto picture = image::Resample(source, box.size.height, box.size.width);
    image::LogFont font = image::MakeWatermarkFont(settings, 96);
    if (settings.checkUseWatermark == 1) {
      image::DrawWatermarkText(*picture, font, settings.textWatermark, settings.comboTextPlacement, settings.Color,
                               static_cast<std::uint8_t>(settings.sliderAlpha), texts);
    }
    const auto file = harness.folder.Path() / "expected.jpg";
    image::SaveJPEGImage(*picture, file, quality);
    EXPECT_TRUE(image::LoadJPEGImage(*picture, file));
    return fakes::BytesOf(*picture);
  }

  fakes::SampleHarness harness;
  fakes::RecordingSampleBox box;
  fakes::ScriptedCommonDialogs dialogs;
  FontRecordingRaster texts{20, 10};
  env::Screen screen;
  SampleSources sources{harness.Jpeg("ramp.jpg", 0x204060, 64, 48, 2), {}, harness.TempFolderLocation()};
  const image::WatermarkSettings on{.checkUseWatermark = 1, .textWatermark = "SAMPLE", .comboTextPlacement = 4};
};

TEST(TextPlacements, AreElevenInTheOrderOfTheirNumbers) {
  EXPECT_EQ(std::vector<std::string_view>(TextPlacements().begin(), TextPlacements().end()),
            (std::vector<std::string_view>{"Top Left", "Top Center", "Top Right", "Left Center", "Center",
                                           "Right Center", "Bottom Left", "Bottom Center", "Bottom Right",
                                           "Top Left to Bottom Right", "Bottom Left to Top Right"}));
}

TEST_F(WatermarkDialog, TheSampleIsResizedThenWatermarkedThenCompressed) {
  Opened(on, 9);
  EXPECT_EQ(box.calls, "clear paint ");
  EXPECT_EQ(box.painted.at(0), Expected(on, 9));
}

TEST_F(WatermarkDialog, WithoutAWatermarkTheSampleStillShowsTheQuality) {
  image::WatermarkSettings off = on;
  off.checkUseWatermark = 0;
  const auto model = Opened(off, 100);
  EXPECT_EQ(box.painted.at(0), Expected(off, 100));
  model->SetQuality(2);
  EXPECT_EQ(box.painted.at(1), Expected(off, 2));
  EXPECT_NE(box.painted[0], box.painted[1]);
  EXPECT_EQ(texts.drawn, 0);
}

TEST_F(WatermarkDialog, EachControlUpdatesTheSample) {
  const auto model = Opened(on);
  image::WatermarkSettings settings = on;
  model->SetAlpha(90);
  settings.sliderAlpha = 90;
  EXPECT_EQ(box.painted.back(), Expected(settings, 85));
  model->SetPlacement(8);
  settings.comboTextPlacement = 8;
  EXPECT_EQ(box.painted.back(), Expected(settings, 85));
  model->SetUseWatermark(false);
  settings.checkUseWatermark = 0;
  EXPECT_EQ(box.painted.back(), Expected(settings, 85));
  model->SetQuality(20);
  EXPECT_EQ(box.painted.back(), Expected(settings, 20));
  model->Preview();
  EXPECT_EQ(box.painted.size(), 6U);
}

TEST_F(WatermarkDialog, TheCurrentPlacementDoesNotUpdateTheSample) {
  const auto model = Opened(on);
  model->SetPlacement(4);
  EXPECT_EQ(box.painted.size(), 1U);
}

TEST_F(WatermarkDialog, AnEditOfTheTextUpdatesTheSampleWhenTheBoxIsLeft) {
  const auto model = Opened(on);
  model->LeaveText();
  EXPECT_EQ(box.painted.size(), 1U) << "nothing was edited";
  model->EditText("");
  EXPECT_TRUE(model->TextChanged());
  EXPECT_EQ(box.painted.size(), 1U);
  model->LeaveText();
  EXPECT_FALSE(model->TextChanged());
  ASSERT_EQ(box.painted.size(), 2U);
  EXPECT_NE(box.painted[0], box.painted[1]);
  model->LeaveText();
  EXPECT_EQ(box.painted.size(), 2U);
}

TEST_F(WatermarkDialog, TheFontIsShownAtOnceAndStoredByApply) {
  const auto model = Opened(on);
  const env::FontDescription chosen{.Name = "Serif",
                                    .Size = 20,
                                    .Weight = 400,
                                    .Italic = true,
                                    .Underline = true,
                                    .Strikeout = true,
                                    .Color = 0x0000FF};
  dialogs.fonts = {chosen};
  model->BrowseFont();
  EXPECT_EQ(dialogs.fontsShown.at(0),
            (env::FontDescription{.Name = "Arial", .Size = 36, .Weight = 700, .Color = 0xFFFFFF}));
  ASSERT_EQ(box.painted.size(), 2U);
  EXPECT_NE(box.painted[0], box.painted[1]);
  EXPECT_EQ(texts.last.lfFaceName, "Serif");
  EXPECT_EQ(texts.last.lfHeight, -27);
  EXPECT_EQ(texts.last.lfWeight, 400);
  EXPECT_EQ(texts.last.lfItalic + texts.last.lfUnderline + texts.last.lfStrikeOut, 3);
  EXPECT_EQ(model->WorkingFont(), chosen);
  EXPECT_EQ(model->Settings().FontName, "Arial");
  model->Apply();
  EXPECT_EQ(model->Settings().FontName, "Serif");
  EXPECT_EQ(model->Settings().FontSize, 20);
  EXPECT_EQ(model->Settings().FontWeight, 400);
  EXPECT_TRUE(model->Settings().FontItalic && model->Settings().FontUnderline && model->Settings().FontStrikeout);
  EXPECT_EQ(model->Settings().Color, 0x0000FFU);
}

TEST_F(WatermarkDialog, ACancelledFontDialogDoesNotUpdateTheSample) {
  const auto model = Opened(on);
  dialogs.fonts = {std::nullopt};
  model->BrowseFont();
  EXPECT_EQ(box.painted.size(), 1U);
  EXPECT_EQ(model->WorkingFont().Name, "Arial");
}

TEST_F(WatermarkDialog, AFontSizeBeyondSixteenBitsIsClamped) {
  const auto model = Opened(on);
  dialogs.fonts = {env::FontDescription{.Name = "Arial", .Size = 40000, .Weight = -40000}};
  model->BrowseFont();
  model->Apply();
  EXPECT_EQ(model->Settings().FontSize, std::numeric_limits<std::int16_t>::max());
  EXPECT_EQ(model->Settings().FontWeight, std::numeric_limits<std::int16_t>::min());
}

TEST_F(WatermarkDialog, TheTextScalesWithTheResolutionOfTheScreen) {
  Opened(on);
  EXPECT_EQ(texts.last.lfHeight, -48);
  box.ratio = 1.5;
  Opened(on);
  EXPECT_EQ(texts.last.lfHeight, -72);
}

TEST_F(WatermarkDialog, ApplyReturnsTheValuesOfTheControls) {
  const auto model = Opened(on, 50);
  model->EditText("two\r\nlines");
  model->SetPlacement(10);
  model->SetAlpha(1);
  model->SetQuality(99);
  EXPECT_EQ(model->Settings().comboTextPlacement, 4);
  EXPECT_EQ(model->WorkingPlacement(), 10);
  model->Apply();
  EXPECT_FALSE(model->Cancelled());
  EXPECT_EQ(model->Settings().textWatermark, "two\r\nlines");
  EXPECT_EQ(model->Settings().comboTextPlacement, 10);
  EXPECT_EQ(model->Settings().sliderAlpha, 1);
  EXPECT_EQ(model->Quality(), 99);
  EXPECT_TRUE(box.calls.ends_with("hide "));
}

TEST_F(WatermarkDialog, CancelHidesTheDialog) {
  const auto model = Opened(on);
  model->Cancel();
  EXPECT_TRUE(model->Cancelled());
  model->Apply();
  EXPECT_TRUE(model->Cancelled());
  EXPECT_EQ(box.calls, "clear paint hide ");
}

TEST_F(WatermarkDialog, ATemporaryFolderThatCannotBeCreatedClosesItWithThePathOfTheFolder) {
  const auto model = Opened(on);
  harness.BlockTempFolder();
  model->SetAlpha(3);
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image in \"" +
                                             harness.TempFolderLocation() +
                                             "\".  Please check the Temporary Folder Location.");
  EXPECT_TRUE(model->Cancelled());
  EXPECT_EQ(box.calls, "clear paint hide ");
}

/// Fails to draw, as without fonts.
class FailingRaster : public fakes::BoxTextRaster {
 public:
  FailingRaster() : BoxTextRaster(20, 10) {}
  [[nodiscard]] image::TextMask Draw(const image::LogFont& /*font*/, std::string_view /*text*/,
                                     const image::TextPlace& /*place*/, std::int32_t /*width*/,
                                     std::int32_t /*height*/) const override {
    throw env::RuntimeFailure(env::FailureKind::FileNotFound, "no font");
  }
};

TEST_F(WatermarkDialog, AWatermarkThatCannotBeDrawnIsReportedAndTheSampleShownWithoutIt) {
  const FailingRaster failing;
  WatermarkModel model(on, 85, sources, harness.Ports(), {dialogs, failing, screen}, box);
  model.Open();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Watermark");
  EXPECT_EQ(harness.boxes.boxes[0].text, "no font");
  image::WatermarkSettings off = on;
  off.checkUseWatermark = 0;
  EXPECT_EQ(box.painted.at(0), Expected(off, 85));
}

TEST_F(WatermarkDialog, AFailureOfTheFontDialogIsReportedAndTheFontStays) {
  class Failing : public fakes::ScriptedCommonDialogs {
   public:
    [[nodiscard]] bool ShowFontDialog(env::FontDescription& /*font*/) override {
      throw env::RuntimeFailure(env::FailureKind::OutOfMemory, "no fonts");
    }
  } failing;
  WatermarkModel model(on, 85, sources, harness.Ports(), {failing, texts, screen}, box);
  model.Open();
  model.BrowseFont();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "no fonts");
  EXPECT_EQ(model.WorkingFont().Name, "Arial");
}

TEST_F(WatermarkDialog, ATextThatCannotBePlacedIsReportedAndTheSampleShownWithoutIt) {
  texts.extent = {40000, 10};
  const auto model = Opened(on);
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Invalid Value");
  EXPECT_EQ(harness.boxes.boxes[0].text, "Overflow");
  image::WatermarkSettings off = on;
  off.checkUseWatermark = 0;
  EXPECT_EQ(box.painted.at(0), Expected(off, 85));
}

TEST_F(WatermarkDialog, ValuesBeyondTheSlidersAreClamped) {
  image::WatermarkSettings wild = on;
  wild.sliderAlpha = 0;
  EXPECT_EQ(Opened(wild, 0)->Settings().sliderAlpha, 1);
  EXPECT_EQ(Opened(wild, 0)->Quality(), 1);
  wild.sliderAlpha = 300;
  EXPECT_EQ(Opened(wild, 101)->Settings().sliderAlpha, 100);
  EXPECT_EQ(Opened(wild, 101)->Quality(), 100);
}

TEST_F(WatermarkDialog, AnUnknownPlacementIsKeptUntilAnotherIsChosen) {
  image::WatermarkSettings wild = on;
  wild.comboTextPlacement = 77;
  const auto model = Opened(wild);
  model->Apply();
  EXPECT_EQ(model->Settings().comboTextPlacement, 77);
}

TEST_F(WatermarkDialog, ItsControlsDoNothingBeforeTheSampleIsLoaded) {
  WatermarkModel model(on, 85, sources, harness.Ports(), {dialogs, texts, screen}, box);
  model.SetAlpha(5);
  model.LeaveText();
  model.Preview();
  model.Apply();
  EXPECT_EQ(box.calls, "");
  EXPECT_TRUE(model.Cancelled());
}

TEST_F(WatermarkDialog, TheFontIsDescribedInWords) {
  const auto model = Opened(on);
  EXPECT_EQ(model->FontSummary(), "Arial, 36 points, bold");
  dialogs.fonts = {env::FontDescription{
      .Name = "Serif", .Size = 9, .Weight = 400, .Italic = true, .Underline = true, .Strikeout = true}};
  model->BrowseFont();
  EXPECT_EQ(model->FontSummary(), "Serif, 9 points, italic, underlined, struck out");
}

TEST(FontWeights, OnlyAChangeOfBoldChangesTheWeight) {
  EXPECT_EQ(WeightFor(true, 900), 900);
  EXPECT_EQ(WeightFor(true, 400), 700);
  EXPECT_EQ(WeightFor(false, 700), 400);
  EXPECT_EQ(WeightFor(false, 300), 300);
  EXPECT_EQ(WeightFor(false, 0), 0);
}

TEST(FontSamples, LightColorsHaveADarkBackground) {
  EXPECT_TRUE(NeedsDarkGround(0xFFFFFF));
  EXPECT_TRUE(NeedsDarkGround(0x00FF00)) << "green";
  EXPECT_FALSE(NeedsDarkGround(0x000000));
  EXPECT_FALSE(NeedsDarkGround(0xFF0000)) << "blue";
}

}  // namespace
}  // namespace vantorium::ui
