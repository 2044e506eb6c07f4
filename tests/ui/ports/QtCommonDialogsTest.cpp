#include "image/PangoTextRaster.h"
#include "tests/ui/FormDriver.h"
#include "ui/ports/QtCommonDialogs.h"
#include "ui/widgets/ColorButton.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QColorDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class SystemDialogs : public testing::Test {
 protected:
  /// Shows the font dialog with `font`, runs `drive` on it and returns the dialog's answer.
  bool FontDialog(const std::function<void(QWidget&)>& drive) {
    bool answer = false;
    DriveModal([&] { answer = dialogs.ShowFontDialog(font); }, drive);
    return answer;
  }

  image::PangoTextRaster texts;
  QtCommonDialogs dialogs{texts};
  env::FontDescription font{.Name = "Liberation Sans", .Size = 36, .Weight = 700, .Color = 0xFFFFFF};
};

TEST_F(SystemDialogs, TheColorDialogBeginsWithTheGivenColorAndReturnsTheChosenOne) {
  std::uint32_t color = 0x302010;
  env::CustomColors custom = {};
  custom[3] = 0x0000FF;
  bool answer = false;
  DriveModal([&] { answer = dialogs.ShowColorDialog(color, custom); },
             [](QWidget& dialog) {
               auto& colors = dynamic_cast<QColorDialog&>(dialog);
               EXPECT_EQ(colors.currentColor(), QColor(0x10, 0x20, 0x30));
               EXPECT_EQ(QColorDialog::customColor(3), QColor(Qt::red));
               QColorDialog::setCustomColor(4, Qt::blue);
               colors.setCurrentColor(QColor(1, 2, 3));
               QTest::keyClick(&dialog, Qt::Key_Return);
             });
  EXPECT_TRUE(answer);
  EXPECT_EQ(color, 0x030201U);
  EXPECT_EQ(custom[3], 0x0000FFU);
  EXPECT_EQ(custom[4], 0xFF0000U);
}

TEST_F(SystemDialogs, ACancelledColorDialogChangesNothing) {
  std::uint32_t color = 0x302010;
  env::CustomColors custom = {};
  bool answer = true;
  DriveModal([&] { answer = dialogs.ShowColorDialog(color, custom); },
             [](QWidget& dialog) {
               dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::green);
               QColorDialog::setCustomColor(0, Qt::blue);
               QTest::keyClick(&dialog, Qt::Key_Escape);
             });
  EXPECT_FALSE(answer);
  EXPECT_EQ(color, 0x302010U);
  EXPECT_EQ(custom, env::CustomColors{});
}

TEST_F(SystemDialogs, TheFontDialogBeginsWithTheGivenFont) {
  font.Underline = true;
  font.Italic = true;
  const env::FontDescription before = font;
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    EXPECT_EQ(Find<QLineEdit>(dialog, "textFontName").text(), "Liberation Sans");
    EXPECT_EQ(Find<QSpinBox>(dialog, "spinFontSize").value(), 36);
    EXPECT_TRUE(Find<QCheckBox>(dialog, "checkFontBold").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(dialog, "checkFontItalic").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(dialog, "checkFontUnderline").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "checkFontStrikeout").isChecked());
    EXPECT_EQ(Find<ColorButton>(dialog, "btnFontColor").GetColor(), 0xFFFFFFU);
    QTest::keyClick(&dialog, Qt::Key_Return);
  }));
  EXPECT_EQ(font, before);
}

TEST_F(SystemDialogs, EveryFontPropertyCanBeChosenWithKeysAndMouse) {
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    Type(Find<QLineEdit>(dialog, "textFontName"), "Liberation Serif");
    Type(Find<QSpinBox>(dialog, "spinFontSize"), "20");
    Click(dialog, "checkFontBold");
    Click(dialog, "checkFontItalic");
    Click(dialog, "checkFontUnderline");
    Click(dialog, "checkFontStrikeout");
    DriveModal([&] { Click(dialog, "btnFontColor"); },
               [](QWidget& colors) {
                 dynamic_cast<QColorDialog&>(colors).setCurrentColor(Qt::red);
                 QTest::keyClick(&colors, Qt::Key_Return);
               });
    EXPECT_EQ(Find<ColorButton>(dialog, "btnFontColor").GetColor(), 0x0000FFU);
    EXPECT_TRUE(Find<QLabel>(dialog, "lblFontSample").font().strikeOut());
    Click(dialog, "OKButton");
  }));
  EXPECT_EQ(font, (env::FontDescription{.Name = "Liberation Serif",
                                        .Size = 20,
                                        .Weight = 400,
                                        .Italic = true,
                                        .Underline = true,
                                        .Strikeout = true,
                                        .Color = 0x0000FF}));
}

TEST_F(SystemDialogs, TheFontsAreThoseOfPangoEachOnce) {
  std::vector<std::string> listed;
  FontDialog([&](QWidget& dialog) {
    const auto& list = Find<QListWidget>(dialog, "listFontNames");
    for (int row = 0; row < list.count(); ++row) listed.push_back(list.item(row)->text().toStdString());
    Click(dialog, "CancelButton");
  });
  EXPECT_FALSE(listed.empty());
  EXPECT_EQ(listed, texts.FaceNames());
}

TEST_F(SystemDialogs, TheFontListAndTheFontNameFollowEachOther) {
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    auto& name = Find<QLineEdit>(dialog, "textFontName");
    auto& list = Find<QListWidget>(dialog, "listFontNames");
    Type(name, "liberation mono");
    ASSERT_NE(list.currentItem(), nullptr);
    EXPECT_EQ(list.currentItem()->text(), "Liberation Mono");
    EXPECT_EQ(name.text(), "liberation mono");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(name.text(), list.item(0)->text());
    EXPECT_EQ(list.currentRow(), 0);
    Click(dialog, "OKButton");
  }));
  EXPECT_NE(font.Name, "Liberation Sans");
}

TEST_F(SystemDialogs, AFaceThatIsNotInstalledIsKept) {
  font.Name = "No Such Face";
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    EXPECT_EQ(Find<QListWidget>(dialog, "listFontNames").currentItem(), nullptr);
    Type(Find<QSpinBox>(dialog, "spinFontSize"), "12");
    Click(dialog, "OKButton");
  }));
  EXPECT_EQ(font.Name, "No Such Face");
  EXPECT_EQ(font.Size, 12);
}

TEST_F(SystemDialogs, APastedFaceLosesItsLineEnd) {
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    QApplication::clipboard()->setText("Liberation Serif\r\n");
    Find<QLineEdit>(dialog, "textFontName").paste();
    Click(dialog, "OKButton");
  }));
  EXPECT_EQ(font.Name, "Liberation Serif");
}

TEST_F(SystemDialogs, AFontNeedsAName) {
  EXPECT_FALSE(FontDialog([](QWidget& dialog) {
    Type(Find<QLineEdit>(dialog, "textFontName"), "  ");
    EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
    Click(dialog, "CancelButton");
  }));
  EXPECT_EQ(font.Name, "Liberation Sans");
}

TEST_F(SystemDialogs, ACancelledFontDialogChangesNothing) {
  const env::FontDescription before = font;
  EXPECT_FALSE(FontDialog([](QWidget& dialog) {
    Click(dialog, "checkFontBold");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }));
  EXPECT_EQ(font, before);
}

TEST_F(SystemDialogs, AWeightThatIsNeitherNormalNorBoldIsKept) {
  font.Weight = 300;
  EXPECT_TRUE(FontDialog([](QWidget& dialog) {
    EXPECT_FALSE(Find<QCheckBox>(dialog, "checkFontBold").isChecked());
    Click(dialog, "OKButton");
  }));
  EXPECT_EQ(font.Weight, 300);
}

}  // namespace
}  // namespace vantorium::ui
