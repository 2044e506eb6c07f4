#include "image/Filters.h"
#include "image/Resample.h"
#include "tests/fakes/SampleFakes.h"
#include "ui/model/dialogs/ImageFiltersModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using Settings = image::ImageFilterSettings;

class ImageFiltersDialog : public testing::Test {
 protected:
  std::unique_ptr<ImageFiltersModel> Opened(const Settings& settings = {}) {
    auto model = std::make_unique<ImageFiltersModel>(settings, sources, harness.Ports(), box);
    model->Open();
    return model;
  }

  /// Whether a preview compresses the source again.
  bool PreviewCompresses(ImageFiltersModel& model) const {
    std::filesystem::remove(harness.TempFile());
    model.Preview();
    return std::filesystem::exists(harness.TempFile());
  }

  /// The expected source after compression to a JPEG file and resizing.
  std::unique_ptr<image::cDIBSection> CompressedAndResized(int quality) {
    image::cDIBSection source;
    EXPECT_TRUE(image::LoadJPEGImage(source, *harness.paths.ToNative(sources.selectedFile)));
    const auto file = harness.folder.Path() / "expected.jpg";
    image::SaveJPEGImage(source, file, quality);
    EXPECT_TRUE(image::LoadJPEGImage(source, file));
    return image::Resample(source, box.size.height, box.size.width);
  }

  fakes::SampleHarness harness;
  fakes::RecordingSampleBox box;
  SampleSources sources{harness.Jpeg("ramp.jpg", 0x204060, 64, 48, 2), {}, harness.TempFolderLocation()};
};

TEST_F(ImageFiltersDialog, OpensWithItsSampleStretchedToTheBox) {
  const auto model = Opened();
  EXPECT_EQ(box.calls, "clear clear paint ");
  EXPECT_EQ(box.paintedSize, (image::PictureSize{40, 30}));
  EXPECT_EQ(box.painted.at(0), fakes::BytesOf(*CompressedAndResized(85)));
  EXPECT_TRUE(model->Cancelled());
}

TEST_F(ImageFiltersDialog, TheSampleHasQualitySizeNoiseFadeBrightnessAndGreyAppliedInThisOrder) {
  Opened({.checkGrayscale = 1,
          .checkBrightness = 1,
          .sliderBrightness = 40,
          .checkFade = 1,
          .sliderFade = 200,
          .checkNoise = 1,
          .sliderNoise = 60,
          .checkNoiseRandom = 1,
          .sliderQuality = 7});
  const auto expected = CompressedAndResized(7);
  image::NoiseStream noise(0, 0);
  image::AddNoise(*expected, 60, true, noise);
  image::Fade(*expected, 200);
  image::Lighten(*expected, 40);
  image::GrayScale(*expected);
  EXPECT_EQ(box.painted.at(0), fakes::BytesOf(*expected));
}

TEST_F(ImageFiltersDialog, EachFilterIsAppliedOnlyIfItIsOn) {
  const std::string plain = fakes::BytesOf(*CompressedAndResized(85));
  for (const auto filter :
       {&Settings::checkGrayscale, &Settings::checkBrightness, &Settings::checkFade, &Settings::checkNoise}) {
    Settings settings;
    settings.*filter = 1;
    Opened(settings);
    EXPECT_NE(box.painted.back(), plain);
  }
  Opened({.checkNoiseRandom = 1});
  EXPECT_EQ(box.painted.back(), plain) << "random noise without noise does nothing";
}

TEST_F(ImageFiltersDialog, ASettingIsShownOnlyAfterPreview) {
  const auto model = Opened();
  model->Set(&Settings::checkGrayscale, 1);
  EXPECT_EQ(box.painted.size(), 1U);
  model->Preview();
  ASSERT_EQ(box.painted.size(), 2U);
  EXPECT_NE(box.painted[0], box.painted[1]);
}

TEST_F(ImageFiltersDialog, EachControlMarksTheSettingsAsChanged) {
  for (const auto field : {&Settings::checkGrayscale, &Settings::checkBrightness, &Settings::sliderBrightness,
                           &Settings::checkFade, &Settings::sliderFade, &Settings::checkNoise, &Settings::sliderNoise,
                           &Settings::checkNoiseRandom, &Settings::sliderQuality}) {
    const auto model = Opened();
    EXPECT_FALSE(model->SettingsChanged());
    model->Set(field, 1);
    EXPECT_TRUE(model->SettingsChanged());
    EXPECT_EQ(model->Settings().*field, 1);
    EXPECT_TRUE(PreviewCompresses(*model));
  }
}

TEST_F(ImageFiltersDialog, WithoutAChangeEverySecondPreviewCompresses) {
  const auto model = Opened();
  EXPECT_FALSE(PreviewCompresses(*model));
  EXPECT_TRUE(PreviewCompresses(*model));
  EXPECT_FALSE(PreviewCompresses(*model));
  EXPECT_EQ(box.painted.front(), box.painted.back());
}

TEST_F(ImageFiltersDialog, ApplyTurnsOffFiltersThatDoNothing) {
  struct Case {
    std::int16_t Settings::*slider;
    std::int16_t Settings::*check;
    std::int16_t idle;
    std::int16_t nearly;
  };
  for (const Case& c : {Case{&Settings::sliderNoise, &Settings::checkNoise, 0, 1},
                        Case{&Settings::sliderBrightness, &Settings::checkBrightness, 0, -1},
                        Case{&Settings::sliderFade, &Settings::checkFade, 255, 254}}) {
    for (const std::int16_t value : {c.idle, c.nearly}) {
      const auto model = Opened();
      model->Set(c.check, 1);
      model->Set(c.slider, value);
      model->Apply();
      EXPECT_FALSE(model->Cancelled());
      EXPECT_EQ(model->Settings().*c.slider, value);
      EXPECT_EQ(model->Settings().*c.check, value == c.idle ? 0 : 1) << value;
    }
  }
  EXPECT_TRUE(box.calls.ends_with("hide "));
}

TEST_F(ImageFiltersDialog, CancelHidesTheDialog) {
  const auto model = Opened();
  model->Set(&Settings::sliderQuality, 3);
  model->Cancel();
  EXPECT_TRUE(model->Cancelled());
  EXPECT_TRUE(box.calls.ends_with("hide "));
}

TEST_F(ImageFiltersDialog, ATemporaryFolderThatCannotBeCreatedClosesItWithThePathOfTheFile) {
  harness.BlockTempFolder();
  const auto model = Opened();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image in \"" +
                                             harness.TempFolderLocation() +
                                             "\\VANTORIUM_TEMP\\preview_temp.jpg\".  Please check the Temporary Folder "
                                             "Location.");
  EXPECT_TRUE(model->Cancelled());
  EXPECT_TRUE(box.painted.empty());
  EXPECT_TRUE(box.calls.ends_with("hide "));
}

TEST_F(ImageFiltersDialog, ItsButtonsDoNothingBeforeTheSampleIsLoaded) {
  ImageFiltersModel model({}, sources, harness.Ports(), box);
  model.Preview();
  model.Apply();
  EXPECT_EQ(box.calls, "");
  EXPECT_TRUE(model.Cancelled());
}

TEST_F(ImageFiltersDialog, ItsButtonsDoNothingOnceItIsClosed) {
  const auto model = Opened();
  model->Cancel();
  const std::string calls = box.calls;
  model->Preview();
  model->Apply();
  EXPECT_EQ(box.calls, calls);
  EXPECT_TRUE(model->Cancelled());
}

TEST_F(ImageFiltersDialog, ValuesBeyondTheSlidersAreClamped) {
  const ImageFiltersModel low({.sliderBrightness = -101, .sliderFade = -1, .sliderNoise = -1, .sliderQuality = 0},
                              sources, harness.Ports(), box);
  EXPECT_EQ(low.Settings().sliderBrightness, -100);
  EXPECT_EQ(low.Settings().sliderFade, 0);
  EXPECT_EQ(low.Settings().sliderNoise, 0);
  EXPECT_EQ(low.Settings().sliderQuality, 1);
  const ImageFiltersModel high({.sliderBrightness = 101, .sliderFade = 256, .sliderNoise = 101, .sliderQuality = 32767},
                               sources, harness.Ports(), box);
  EXPECT_EQ(high.Settings().sliderBrightness, 100);
  EXPECT_EQ(high.Settings().sliderFade, 255);
  EXPECT_EQ(high.Settings().sliderNoise, 100);
  EXPECT_EQ(high.Settings().sliderQuality, 100);
}

}  // namespace
}  // namespace vantorium::ui
