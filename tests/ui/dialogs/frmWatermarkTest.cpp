#include "image/PangoTextRaster.h"
#include "tests/fakes/SampleFakes.h"
#include "tests/fakes/ScriptedCommonDialogs.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmWatermark.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class WatermarkForm : public testing::Test {
 protected:
  /// Opens the dialog for `watermark`, runs `drive` on it and returns the dialog's answer.
  bool Edit(const std::function<void(QWidget&)>& drive) {
    bool answer = false;
    DriveModal(
        [&] {
          answer = EditWatermark("Image Watermarks", watermark, quality, sources, harness.Ports(),
                                 {dialogs, texts, screen}, nullptr);
        },
        drive);
    return answer;
  }

  static QImage Sample(QWidget& form) { return Find<UnscaledPicture>(form, "pbPreview").Shown(); }

  fakes::SampleHarness harness;
  fakes::ScriptedCommonDialogs dialogs;
  image::PangoTextRaster texts;
  env::Screen screen;
  SampleSources sources{harness.Jpeg("ramp.jpg", 0x204060, 300, 200), {}, harness.TempFolderLocation()};
  image::WatermarkSettings watermark{.checkUseWatermark = 1, .textWatermark = "SAMPLE"};
  std::int16_t quality = 85;
};

TEST_F(WatermarkForm, ShowsItsSettingsAndItsSample) {
  watermark.textWatermark = "two\r\nlines";
  Edit([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Image Watermarks");
    EXPECT_TRUE(Find<QCheckBox>(form, "checkUseWatermark").isChecked());
    EXPECT_EQ(Find<QPlainTextEdit>(form, "textWatermark").toPlainText(), "two\nlines");
    const auto& placements = Find<QComboBox>(form, "comboTextPlacement");
    EXPECT_EQ(placements.count(), 11);
    EXPECT_EQ(placements.currentText(), "Bottom Left to Top Right");
    EXPECT_EQ(Find<QLabel>(form, "lblAlpha").text(), "65");
    EXPECT_EQ(Find<QLabel>(form, "lblQuality").text(), "85");
    EXPECT_FALSE(Sample(form).isNull());
  });
}

TEST_F(WatermarkForm, HasItsTextsAndToolTips) {
  Edit([](QWidget& form) {
    const auto caption = [&](const char* name) { return Find<QAbstractButton>(form, name).text(); };
    EXPECT_EQ(caption("checkUseWatermark"), "Use Watermark Text");
    EXPECT_EQ(caption("btnBrowseFont"), "&Font...");
    EXPECT_EQ(caption("btnPreview"), "&Preview");
    EXPECT_EQ(caption("OKButton"), "&Apply");
    EXPECT_EQ(caption("CancelButton"), "&Cancel");
    const auto toolTip = [&](const char* name) { return Find<QWidget>(form, name).toolTip(); };
    EXPECT_EQ(toolTip("checkUseWatermark"),
              "Check this Box if you want Vantorium to add Watermark Captions to all Images");
    EXPECT_EQ(toolTip("textWatermark"), "The Caption that You wish to place on all Images");
    EXPECT_EQ(toolTip("comboTextPlacement"), "Caption Placement in the Image");
    EXPECT_EQ(toolTip("btnBrowseFont"), "Click here to select a Font, Size and Color for the Caption");
    EXPECT_EQ(toolTip("sliderAlpha"), "Alpha Value for the Caption (\"Transparency\")");
    EXPECT_EQ(toolTip("sliderQuality"), "JPG Image Output Quality");
    EXPECT_EQ(toolTip("OKButton"), "Use these Settings");
    EXPECT_EQ(toolTip("CancelButton"), "Discard these Settings");
    const auto label = [&](const char* name) { return Find<QLabel>(form, name).text(); };
    EXPECT_EQ(label("lblCaption"), "Caption");
    EXPECT_EQ(label("lblPlacement"), "Placement");
    EXPECT_EQ(label("lblAlphaValue"), "Alpha Value");
    EXPECT_EQ(label("lblJPEGQuality"), "JPEG Quality");
    EXPECT_EQ(label("Label5"), "Please note that Watermark Text Settings cannot be seen in Gallery Preview Mode.");
  });
}

TEST_F(WatermarkForm, AnyFontNameIsShownAsPlainTextAndDoesNotWidenTheDialog) {
  dialogs.fonts = {env::FontDescription{.Name = "<B>" + std::string(300, 'W'), .Size = 20}};
  Edit([](QWidget& form) {
    const int width = form.width();
    Click(form, "btnBrowseFont");
    QCoreApplication::processEvents();
    EXPECT_EQ(form.width(), width);
    EXPECT_EQ(Find<QLabel>(form, "lblFont").textFormat(), Qt::PlainText);
  });
}

TEST_F(WatermarkForm, HasTheLimitsAndStepsOfItsSliders) {
  Edit([](QWidget& form) {
    for (const char* name : {"sliderAlpha", "sliderQuality"}) {
      const auto& slider = Find<QSlider>(form, name);
      EXPECT_EQ(slider.minimum(), 1) << name;
      EXPECT_EQ(slider.maximum(), 100) << name;
      EXPECT_EQ(slider.singleStep(), 1) << name;
      EXPECT_EQ(slider.pageStep(), 10) << name;
      EXPECT_EQ(slider.tickInterval(), 5) << name;
      EXPECT_NE(slider.tickPosition(), QSlider::NoTicks) << name;
    }
  });
}

TEST_F(WatermarkForm, AppliesValuesSetWithKeysAndMouse) {
  dialogs.fonts = {env::FontDescription{.Name = "Serif", .Size = 20, .Weight = 400, .Italic = true, .Color = 0x0000FF}};
  const bool applied = Edit([](QWidget& form) {
    auto& text = Find<QPlainTextEdit>(form, "textWatermark");
    Type(text, "Z");
    QApplication::clipboard()->setText("ürich");
    QTest::keyClick(&text, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "2026");
    QTest::keyClick(&Find<QComboBox>(form, "comboTextPlacement"), Qt::Key_Home);
    Click(form, "btnBrowseFont");
    EXPECT_EQ(Find<QLabel>(form, "lblFont").text(), "Serif, 20 points, italic");
    QTest::keyClick(&Find<QSlider>(form, "sliderAlpha"), Qt::Key_PageUp);
    QTest::keyClick(&Find<QSlider>(form, "sliderQuality"), Qt::Key_Left);
    EXPECT_EQ(Find<QLabel>(form, "lblAlpha").text(), "75");
    EXPECT_EQ(Find<QLabel>(form, "lblQuality").text(), "84");
    Click(form, "OKButton");
  });
  EXPECT_TRUE(applied);
  EXPECT_EQ(watermark.checkUseWatermark, 1);
  EXPECT_EQ(watermark.textWatermark, "Zürich\r\n2026");
  EXPECT_EQ(watermark.comboTextPlacement, 0);
  EXPECT_EQ(watermark.sliderAlpha, 75);
  EXPECT_EQ(watermark.FontName, "Serif");
  EXPECT_EQ(watermark.FontSize, 20);
  EXPECT_EQ(watermark.FontWeight, 400);
  EXPECT_TRUE(watermark.FontItalic);
  EXPECT_EQ(watermark.Color, 0x0000FFU);
  EXPECT_EQ(quality, 84);
}

TEST_F(WatermarkForm, AnEditKeepsTheRestOfTheText) {
  watermark.textWatermark = "\u00A9\u00A02026 \U0001F5FB\r\n\r\n]]> ";
  const std::string before = watermark.textWatermark;
  EXPECT_TRUE(Edit([](QWidget& form) {
    auto& text = Find<QPlainTextEdit>(form, "textWatermark");
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(&text, "!");
    Click(form, "OKButton");
  }));
  EXPECT_EQ(watermark.textWatermark, before + "!");
}

TEST_F(WatermarkForm, TheSampleFollowsItsControlsAtOnce) {
  Edit([](QWidget& form) {
    QImage before = Sample(form);
    const auto changes = [&](const char* what, const std::function<void()>& change) {
      change();
      EXPECT_NE(Sample(form), before) << what;
      before = Sample(form);
    };
    changes("placement", [&] { QTest::keyClick(&Find<QComboBox>(form, "comboTextPlacement"), Qt::Key_Up); });
    changes("alpha", [&] { QTest::keyClick(&Find<QSlider>(form, "sliderAlpha"), Qt::Key_PageDown); });
    changes("switch", [&] { Click(form, "checkUseWatermark"); });
    changes("quality", [&] { QTest::keyClick(&Find<QSlider>(form, "sliderQuality"), Qt::Key_Home); });
    Click(form, "btnPreview");
    EXPECT_EQ(Sample(form), before) << "nothing was changed";
  });
}

TEST_F(WatermarkForm, TheSampleFollowsTheTextWhenTheBoxIsLeft) {
  Edit([](QWidget& form) {
    const QImage before = Sample(form);
    auto& text = Find<QPlainTextEdit>(form, "textWatermark");
    Type(text, "X");
    EXPECT_EQ(Sample(form), before);
    QTest::keyClick(&text, Qt::Key_Tab);
    EXPECT_FALSE(text.hasFocus());
    EXPECT_EQ(text.toPlainText(), "X");
    EXPECT_NE(Sample(form), before);
  });
}

TEST_F(WatermarkForm, WhileASliderIsDraggedOnlyItsNumberChanges) {
  Edit([](QWidget& form) {
    const QImage before = Sample(form);
    auto& slider = Find<QSlider>(form, "sliderAlpha");
    slider.setSliderDown(true);
    slider.setSliderPosition(3);
    EXPECT_EQ(Find<QLabel>(form, "lblAlpha").text(), "3");
    EXPECT_EQ(Sample(form), before);
    slider.setSliderDown(false);
    EXPECT_EQ(slider.value(), 3);
    EXPECT_NE(Sample(form), before);
  });
}

TEST_F(WatermarkForm, CancelLeavesTheSettingsUnchanged) {
  dialogs.fonts = {env::FontDescription{.Name = "Serif"}, env::FontDescription{.Name = "Serif"}};
  for (const bool byButton : {true, false}) {
    EXPECT_FALSE(Edit([byButton](QWidget& form) {
      Type(Find<QPlainTextEdit>(form, "textWatermark"), "other");
      QTest::keyClick(&Find<QSlider>(form, "sliderQuality"), Qt::Key_Home);
      Click(form, "checkUseWatermark");
      Click(form, "btnBrowseFont");
      if (byButton) {
        Click(form, "CancelButton");
      } else {
        QTest::keyClick(&form, Qt::Key_Escape);
      }
    }));
    EXPECT_EQ(watermark.textWatermark, "SAMPLE");
    EXPECT_EQ(watermark.checkUseWatermark, 1);
    EXPECT_EQ(watermark.FontName, "Arial");
    EXPECT_EQ(quality, 85);
  }
}

TEST_F(WatermarkForm, WithoutASampleItClosesAtOnceWithAMessageBox) {
  sources = {"", {harness.Missing()}, harness.TempFolderLocation()};
  EXPECT_FALSE(EditWatermark("Image Watermarks", watermark, quality, sources, harness.Ports(), {dialogs, texts, screen},
                             nullptr));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "Vantorium was unable to load the default Preview Image.");
}

TEST_F(WatermarkForm, ATemporaryFolderThatCannotBeCreatedClosesItWithAMessageBox) {
  EXPECT_FALSE(Edit([this](QWidget& form) {
    harness.BlockTempFolder();
    Type(Find<QPlainTextEdit>(form, "textWatermark"), "other");
    Click(form, "OKButton");
  }));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Unable to load default Preview Image");
  EXPECT_EQ(watermark.textWatermark, "SAMPLE");
}

}  // namespace
}  // namespace vantorium::ui
