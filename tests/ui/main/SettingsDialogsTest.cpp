// Changes applied in dialogs of the settings pages reach the project; cancelled ones do not.
#include "tests/ui/MainWindowHarness.h"
#include "ui/widgets/UnscaledPicture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

class DialogsOfPages : public testing::Test {
 protected:
  void SetUp() override { harness.Start(); }

  void Drive(int page, const char* button, const std::function<void(QWidget&)>& drive) {
    harness.GoTo(page);
    DriveModal([&] { Click(*harness.window, button); }, drive);
  }
  [[nodiscard]] const core::GalleryProject& Settings() const { return harness.Settings(); }
  [[nodiscard]] bool Modified() const { return harness.model->CurrentProject().IsModified; }

  MainWindowHarness harness;
};

TEST_F(DialogsOfPages, CodeOfOneText) {
  Drive(0, "btnGalleryInfo", [](QWidget& editor) { Click(editor, "btnClose"); });
  EXPECT_FALSE(Modified()) << "closed without a change";
  Drive(0, "btnGalleryInfo", [](QWidget& editor) {
    auto& text = Find<QPlainTextEdit>(editor, "textHTML");
    Type(text, "one");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "<B>two</B>");
    Click(editor, "btnClose");
  });
  EXPECT_EQ(Settings().GalleryInfoText, "one\r\n<B>two</B>");
  EXPECT_TRUE(Modified());
}

TEST_F(DialogsOfPages, HeaderAndFooterCode) {
  const std::string footer = Settings().ImagePageBodyFooter;
  Drive(2, "btnImageWrapperBODY", [](QWidget& editor) {
    Type(Find<QPlainTextEdit>(editor, "textHeader"), "<HR>");
    Click(editor, "btnClose");
  });
  EXPECT_EQ(Settings().ImagePageBodyHeader, "<HR>");
  EXPECT_EQ(Settings().ImagePageBodyFooter, footer);
  EXPECT_TRUE(Modified());
}

TEST_F(DialogsOfPages, CodeThatAProjectCannotStoreIsRefused) {
  Drive(0, "btnGalleryHEAD", [this](QWidget& editor) {
    Type(Find<QPlainTextEdit>(editor, "textHTML"), "a]]>b");
    Click(editor, "btnClose");
    EXPECT_EQ(harness.TitleOfLastBox(), "Invalid Characters found");
    EXPECT_TRUE(editor.isVisible());
    Type(Find<QPlainTextEdit>(editor, "textHTML"), "ab");
    Click(editor, "btnClose");
  });
  EXPECT_EQ(Settings().GalleryHeadCode, "ab");
}

TEST_F(DialogsOfPages, ColorsOfAPage) {
  harness.GoTo(2);
  Click(*harness.window, "checkImageWrapperSetColors");
  harness.dialogs.colors = {0x112233};
  Drive(2, "btnImageWrapperColors", [](QWidget& colors) {
    Click(colors, "btnBGColor");
    Click(colors, "CancelButton");
  });
  EXPECT_EQ(Settings().ImagePageBgColor, 0xFFFFFFU);
  harness.dialogs.colors = {0x112233};
  Drive(2, "btnImageWrapperColors", [](QWidget& colors) {
    Click(colors, "btnBGColor");
    Click(colors, "OKButton");
  });
  EXPECT_EQ(Settings().ImagePageBgColor, 0x112233U);
  harness.GoTo(3);
  Click(*harness.window, "checkThumbnailsPageSetColors");
  Drive(3, "btnThumbnailsPageColors", [](QWidget& colors) {
    Click(colors, "btnUseOtherColors");
    Click(colors, "OKButton");
  });
  EXPECT_EQ(Settings().ThumbnailPageBgColor, 0x112233U);
}

TEST_F(DialogsOfPages, APageLink) {
  Drive(5, "btnPageLinksImageFirstLink", [](QWidget& link) { Click(link, "OKButton"); });
  EXPECT_FALSE(Modified()) << "closed without a change";
  Drive(5, "btnPageLinksImageFirstLink", [](QWidget& link) {
    EXPECT_TRUE(Find<QWidget>(link, "textLinkGraphicDisabled").isVisible());
    Type(Find<QLineEdit>(link, "textLinkLabel"), "Anfang");
    Type(Find<QLineEdit>(link, "textLinkGraphic"), "first.gif");
    Click(link, "OKButton");
  });
  EXPECT_EQ(Settings().ImageFirstLink.textLinkLabel, "Anfang");
  EXPECT_EQ(Settings().ImageFirstLink.textLinkGraphic, "first.gif");
  EXPECT_EQ(Settings().ImageFirstLink.textLinkGraphicDisabled, "first.gif");
  EXPECT_TRUE(Modified());
  Drive(5, "btnPageLinksImageIndexLink",
        [](QWidget& link) { EXPECT_FALSE(Find<QWidget>(link, "textLinkGraphicDisabled").isVisible()); });
}

TEST_F(DialogsOfPages, Filters) {
  Drive(1, "btnImagesFilters", [](QWidget& filters) {
    Click(filters, "checkGrayscale");
    Click(filters, "btnCancel");
  });
  EXPECT_EQ(Settings().ImageFilters.checkGrayscale, 0);
  EXPECT_FALSE(Modified());
  Drive(1, "btnImagesFilters", [](QWidget& filters) {
    Click(filters, "checkGrayscale");
    Click(filters, "btnPreview");
    Click(filters, "btnOK");
  });
  EXPECT_EQ(Settings().ImageFilters.checkGrayscale, 1);
  EXPECT_EQ(Settings().ThumbnailFilters.checkGrayscale, 0);
  EXPECT_TRUE(Modified());
}

TEST_F(DialogsOfPages, WatermarksUseTheQualityOfTheirFilters) {
  Drive(3, "btnThumbnailsWatermark", [](QWidget& watermark) {
    Click(watermark, "checkUseWatermark");
    QTest::keyClick(&Find<QSlider>(watermark, "sliderQuality"), Qt::Key_Left);
    Click(watermark, "OKButton");
  });
  EXPECT_EQ(Settings().ThumbnailWatermark.checkUseWatermark, 1);
  EXPECT_EQ(Settings().ThumbnailFilters.sliderQuality, 84);
  EXPECT_EQ(Settings().ImageWatermark.checkUseWatermark, 0);
  Drive(3, "btnThumbnailsImageFilters",
        [](QWidget& filters) { EXPECT_EQ(Find<QSlider>(filters, "sliderQuality").value(), 84); });
}

TEST_F(DialogsOfPages, TheQualityOfFiltersIsThatOfTheirWatermark) {
  Drive(1, "btnImagesFilters", [](QWidget& filters) {
    QTest::keyClick(&Find<QSlider>(filters, "sliderQuality"), Qt::Key_Home);
    Click(filters, "btnOK");
  });
  Drive(1, "btnImagesWatermark", [](QWidget& watermark) {
    EXPECT_EQ(Find<QSlider>(watermark, "sliderQuality").value(), 1);
    QTest::keyClick(&Find<QSlider>(watermark, "sliderQuality"), Qt::Key_End);
    Click(watermark, "CancelButton");
  });
  EXPECT_EQ(Settings().ImageFilters.sliderQuality, 1);
}

TEST_F(DialogsOfPages, ApplyMarksTheProjectAsModifiedEvenWithoutAChange) {
  const std::tuple<int, const char*, const char*> dialogs[] = {{1, "btnImagesFilters", "btnOK"},
                                                               {1, "btnImagesWatermark", "OKButton"},
                                                               {2, "btnImageWrapperColors", "OKButton"}};
  for (const auto& [page, button, apply] : dialogs) {
    harness.Start();
    harness.GoTo(2);
    Click(*harness.window, "checkImageWrapperSetColors");
    harness.fileBrowser.answer = {"T:\\a.gpj", "T:\\", {"T:\\a.gpj"}};
    harness.Trigger("menuFileSave");
    EXPECT_FALSE(Modified());
    Drive(page, button, [apply = apply](QWidget& dialog) { Click(dialog, apply); });
    EXPECT_TRUE(Modified()) << button;
  }
}

TEST_F(DialogsOfPages, TheSampleIsTheSelectedImageOrElseTheBundledPicture) {
  const auto plain = [](std::uint8_t red, std::uint8_t blue) {
    return fakes::MakeJpeg({}, [=](int, int) { return std::array<std::uint8_t, 4>{red, 0, blue, 0}; });
  };
  const auto middle = [this](const char* button) {
    QColor color;
    Drive(1, button, [&](QWidget& dialog) {
      const QImage& sample = Find<UnscaledPicture>(dialog, "pbPreview").Shown();
      color = sample.pixelColor(sample.rect().center());
    });
    return std::pair(color.red() / 64, color.blue() / 64);
  };
  harness.folder.Write("program/preview.jpg", plain(255, 0));
  EXPECT_EQ(middle("btnImagesFilters"), std::pair(3, 0)) << "the bundled picture";
  harness.AddPhotograph("a.jpg");
  harness.folder.Write("a.jpg", plain(0, 255));
  QTest::keyClick(&Find<QWidget>(*harness.window, "lvImagesList"), Qt::Key_Home);
  EXPECT_EQ(middle("btnImagesFilters"), std::pair(0, 3));
  EXPECT_EQ(middle("btnImagesWatermark"), std::pair(0, 3));
  std::filesystem::remove(harness.folder.Path() / "a.jpg");
  EXPECT_EQ(middle("btnImagesWatermark"), std::pair(3, 0)) << "without a message box";
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(DialogsOfPages, FileNamesAndFrameNames) {
  Drive(0, "btnGalleryFileNameSettings", [](QWidget& names) {
    Type(Find<QLineEdit>(names, "textImageSettingsSubFolder"), "Big");
    Click(names, "btnClose");
  });
  EXPECT_EQ(Settings().textImageSettingsSubFolder, "Big");
  EXPECT_EQ(Settings().comboImageWrapperSettingsFileExtension, ".htm");
  Drive(0, "btnGallerySingleFrameNames", [](QWidget& names) {
    Type(Find<QLineEdit>(names, "textThumbnailFrameName"), "left");
    Click(names, "btnClose");
  });
  EXPECT_EQ(Settings().textThumbnailFrameName, "left");
}

TEST_F(DialogsOfPages, AnImageFillsTheScreen) {
  harness.AddPhotograph("a.jpg");
  QString title;
  harness.GoTo(1);
  auto& list = Find<QWidget>(*harness.window, "lvImagesList");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  DriveModal([&] { QTest::mouseDClick(&Find<QWidget>(*harness.window, "pbImagesPreview"), Qt::LeftButton); },
             [&](QWidget& preview) { title = preview.windowTitle(); });
  EXPECT_EQ(title, "Full Screen Preview: a.jpg");
}

}  // namespace
}  // namespace vantorium::ui
