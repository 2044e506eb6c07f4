#include "tests/fakes/SampleFakes.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmImageFilters.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;

class ImageFiltersForm : public testing::Test {
 protected:
  /// Opens the dialog for `filters`, runs `drive` on it and returns the dialog's answer.
  bool Edit(const std::function<void(QWidget&)>& drive) {
    bool answer = false;
    DriveModal([&] { answer = EditImageFilters("Filters for Images", filters, sources, harness.Ports(), nullptr); },
               drive);
    return answer;
  }

  fakes::SampleHarness harness;
  SampleSources sources{harness.Jpeg("ramp.jpg", 0x204060, 300, 200), {}, harness.TempFolderLocation()};
  image::ImageFilterSettings filters;
};

TEST_F(ImageFiltersForm, ShowsItsSettingsAndItsSample) {
  filters = {.checkGrayscale = 1,
             .checkBrightness = 0,
             .sliderBrightness = -30,
             .checkFade = 1,
             .sliderFade = 200,
             .checkNoise = 0,
             .sliderNoise = 70,
             .checkNoiseRandom = 1,
             .sliderQuality = 60};
  Edit([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Filters for Images");
    EXPECT_TRUE(Find<QCheckBox>(form, "checkGrayscale").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(form, "checkBrightness").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(form, "checkFade").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(form, "checkNoise").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(form, "checkNoiseRandom").isChecked());
    EXPECT_EQ(Find<QLabel>(form, "lblBrightness").text(), "-30");
    EXPECT_EQ(Find<QLabel>(form, "lblFade").text(), "200");
    EXPECT_EQ(Find<QLabel>(form, "lblNoise").text(), "70");
    EXPECT_EQ(Find<QLabel>(form, "lblQuality").text(), "60");
    const QImage& sample = Find<UnscaledPicture>(form, "pbPreview").Shown();
    ASSERT_FALSE(sample.isNull());
    const QColor middle = sample.pixelColor(sample.rect().center());
    EXPECT_EQ(middle.red(), middle.blue()) << "grey";
  });
}

TEST_F(ImageFiltersForm, HasItsTextsAndToolTips) {
  struct Text {
    const char* button;
    const char* caption;
    const char* toolTip;
  };
  Edit([](QWidget& form) {
    for (const Text& text :
         {Text{"checkGrayscale", "Grayscale", "Convert the Image into Grayscale (remove Color Information)"},
          Text{"checkBrightness", "Brightness", "Make the Image brighter or darker"},
          Text{"checkFade", "Fade", "Fade the Image"}, Text{"checkNoise", "Noise", "Create Noise on the Image"},
          Text{"checkNoiseRandom", "Random",
               "Check this Box to create random Noise; otherwise, uniform Noise will be generated"},
          Text{"btnOK", "&Apply", "Use these Filter Settings"},
          Text{"btnPreview", "&Preview", "Preview current Filter Settings using the Image on the Right"},
          Text{"btnCancel", "&Cancel", "Discard these Filter Settings"}}) {
      EXPECT_EQ(Find<QAbstractButton>(form, text.button).text(), text.caption);
      EXPECT_EQ(Find<QWidget>(form, text.button).toolTip(), text.toolTip) << text.button;
    }
    EXPECT_EQ(Find<QSlider>(form, "sliderQuality").toolTip(), "JPG Image Output Quality");
    EXPECT_EQ(Find<QLabel>(form, "lbl").text(), "JPEG Quality");
    EXPECT_EQ(Find<QLabel>(form, "Label1").text(),
              "Please note that Filter Settings cannot be seen in Gallery Preview Mode.");
    EXPECT_EQ(Find<QLabel>(form, "Label2").text(),
              "To see the Effect of your Settings in this Window, use the \"Preview\" Button.");
  });
}

TEST_F(ImageFiltersForm, HasTheLimitsAndStepsOfItsSliders) {
  struct Limits {
    const char* slider;
    int minimum;
    int maximum;
    int page;
    int tick;
  };
  Edit([](QWidget& form) {
    for (const Limits& limits : {Limits{"sliderBrightness", -100, 100, 5, 10}, Limits{"sliderFade", 0, 255, 5, 16},
                                 Limits{"sliderNoise", 0, 100, 5, 5}, Limits{"sliderQuality", 1, 100, 10, 5}}) {
      const auto& slider = Find<QSlider>(form, limits.slider);
      EXPECT_EQ(slider.minimum(), limits.minimum) << limits.slider;
      EXPECT_EQ(slider.maximum(), limits.maximum) << limits.slider;
      EXPECT_EQ(slider.singleStep(), 1) << limits.slider;
      EXPECT_EQ(slider.pageStep(), limits.page) << limits.slider;
      EXPECT_EQ(slider.tickInterval(), limits.tick) << limits.slider;
      EXPECT_NE(slider.tickPosition(), QSlider::NoTicks) << limits.slider;
    }
  });
}

TEST_F(ImageFiltersForm, AppliesValuesSetWithKeysAndMouse) {
  const bool applied = Edit([](QWidget& form) {
    for (const char* box : {"checkGrayscale", "checkBrightness", "checkFade", "checkNoise", "checkNoiseRandom"}) {
      Click(form, box);
    }
    QTest::keyClick(&Find<QSlider>(form, "sliderBrightness"), Qt::Key_Right);
    QTest::keyClick(&Find<QSlider>(form, "sliderNoise"), Qt::Key_PageUp);
    QTest::keyClick(&Find<QSlider>(form, "sliderFade"), Qt::Key_End);
    QTest::keyClick(&Find<QSlider>(form, "sliderQuality"), Qt::Key_PageDown);
    EXPECT_EQ(Find<QLabel>(form, "lblBrightness").text(), "26");
    EXPECT_EQ(Find<QLabel>(form, "lblNoise").text(), "55");
    EXPECT_EQ(Find<QLabel>(form, "lblFade").text(), "255");
    EXPECT_EQ(Find<QLabel>(form, "lblQuality").text(), "75");
    Click(form, "btnOK");
  });
  EXPECT_TRUE(applied);
  EXPECT_EQ(filters.checkGrayscale, 1);
  EXPECT_EQ(filters.checkBrightness, 1);
  EXPECT_EQ(filters.sliderBrightness, 26);
  EXPECT_EQ(filters.checkFade, 0) << "fading by 255 does nothing";
  EXPECT_EQ(filters.sliderFade, 255);
  EXPECT_EQ(filters.checkNoise, 1);
  EXPECT_EQ(filters.sliderNoise, 55);
  EXPECT_EQ(filters.checkNoiseRandom, 1);
  EXPECT_EQ(filters.sliderQuality, 75);
}

TEST_F(ImageFiltersForm, ThePreviewButtonShowsTheSampleAgain) {
  Edit([](QWidget& form) {
    auto& box = Find<UnscaledPicture>(form, "pbPreview");
    const QRgb before = box.Shown().pixel(50, 50);
    Click(form, "checkGrayscale");
    EXPECT_EQ(box.Shown().pixel(50, 50), before);
    Click(form, "btnPreview");
    EXPECT_NE(box.Shown().pixel(50, 50), before);
    EXPECT_TRUE(form.isVisible());
  });
}

TEST_F(ImageFiltersForm, ADraggedSliderChangesTheSettingsAndOnlyTheButtonUpdatesThePicture) {
  Edit([](QWidget& form) {
    const auto& model = dynamic_cast<frmImageFilters&>(form).Model();
    const QImage before = Find<UnscaledPicture>(form, "pbPreview").Shown();
    for (const char* name : {"sliderBrightness", "sliderFade", "sliderNoise", "sliderQuality"}) {
      if (model.SettingsChanged()) Click(form, "btnPreview");
      EXPECT_FALSE(model.SettingsChanged());
      auto& slider = Find<QSlider>(form, name);
      slider.setSliderDown(true);
      slider.setSliderPosition(5);
      EXPECT_TRUE(model.SettingsChanged()) << name;
      EXPECT_EQ(Find<QLabel>(form, (std::string("lbl") + (name + 6)).c_str()).text(), "5");
      slider.setSliderDown(false);
    }
    EXPECT_EQ(Find<UnscaledPicture>(form, "pbPreview").Shown(), before);
    Click(form, "btnPreview");
    EXPECT_NE(Find<UnscaledPicture>(form, "pbPreview").Shown(), before);
  });
}

TEST_F(ImageFiltersForm, EnterAppliesAndEscapeCancels) {
  EXPECT_TRUE(Edit([](QWidget& form) {
    Click(form, "checkGrayscale");
    QTest::keyClick(&form, Qt::Key_Return);
  }));
  EXPECT_EQ(filters.checkGrayscale, 1);
  EXPECT_FALSE(Edit([](QWidget& form) {
    Click(form, "checkGrayscale");
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
  EXPECT_EQ(filters.checkGrayscale, 1);
}

TEST_F(ImageFiltersForm, CancelLeavesTheSettingsUnchanged) {
  for (const bool byButton : {true, false}) {
    EXPECT_FALSE(Edit([byButton](QWidget& form) {
      QTest::keyClick(&Find<QSlider>(form, "sliderQuality"), Qt::Key_Home);
      QTest::keyClick(&Find<QSlider>(form, "sliderNoise"), Qt::Key_Home);
      if (byButton) {
        Click(form, "btnCancel");
      } else {
        form.close();
      }
    }));
    EXPECT_EQ(filters.sliderQuality, 85);
    EXPECT_EQ(filters.sliderNoise, 50);
  }
}

TEST_F(ImageFiltersForm, WithoutASampleItClosesAtOnceWithAMessageBox) {
  sources = {"", {harness.Missing()}, harness.TempFolderLocation()};
  EXPECT_FALSE(EditImageFilters("Filters for Images", filters, sources, harness.Ports(), nullptr));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image.");
}

}  // namespace
}  // namespace vantorium::ui
