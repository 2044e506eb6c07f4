#include "tests/fakes/ScriptedCommonDialogs.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmSelectColors.h"
#include "ui/qt/QtColor.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;

/// A button and the control that shows its color.
struct Pair {
  const char* button;
  const char* element;
  core::Color core::PageColors::*color;
};

constexpr Pair kPairs[] = {{"btnBGColor", "textBG", &core::PageColors::background},
                           {"btnFGColor", "lblText", &core::PageColors::text},
                           {"btnLinkColor", "lblLink", &core::PageColors::link},
                           {"btnVisitedLinkColor", "lblVisitedLink", &core::PageColors::visitedLink},
                           {"btnActiveLinkColor", "lblActiveLink", &core::PageColors::activeLink}};

class SelectColorsForm : public testing::Test {
 protected:
  bool Edit(const std::function<void(QWidget&)>& drive, const char* title = "Select Thumbnail Page Colors") {
    bool answer = false;
    DriveModal([&] { answer = SelectColors(title, colors, others, dialog, nullptr); }, drive);
    return answer;
  }

  /// The colors of the buttons. Expects that the sample page shows the same.
  static core::PageColors Shown(QWidget& form) {
    core::PageColors shown;
    for (const Pair& pair : kPairs) {
      shown.*pair.color = Find<ColorButton>(form, pair.button).GetColor();
      const QPalette palette = Find<QWidget>(form, pair.element).palette();
      EXPECT_EQ(FromQt(palette.color(QPalette::Window)), Find<ColorButton>(form, "btnBGColor").GetColor());
      if (pair.color == &core::PageColors::background) continue;
      EXPECT_EQ(FromQt(palette.color(QPalette::WindowText)), shown.*pair.color) << pair.element;
    }
    return shown;
  }

  fakes::ScriptedCommonDialogs dialogs;
  ColorDialog dialog{dialogs};
  core::PageColors colors = {0xFFFFFF, 0x000000, 0xA00000, 0x800080, 0x0000FF};
  const core::PageColors others = {0x111111, 0x222222, 0x333333, 0x444444, 0x555555};
};

TEST_F(SelectColorsForm, ShowsItsColorsWithTheFocusOnApply) {
  Edit([this](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Select Thumbnail Page Colors");
    EXPECT_EQ(Shown(form), colors);
    EXPECT_TRUE(Find<QPushButton>(form, "OKButton").hasFocus());
    EXPECT_EQ(Find<QLabel>(form, "lblText").text(), "Regular Text");
    EXPECT_EQ(Find<QLabel>(form, "lblLink").text(), "Regular Link");
    EXPECT_EQ(Find<QLabel>(form, "lblVisitedLink").text(), "Visited Link");
    EXPECT_EQ(Find<QLabel>(form, "lblActiveLink").text(), "Active Link");
    EXPECT_EQ(Find<QWidget>(form, "btnBGColor").toolTip(), "Page Background Color");
    EXPECT_EQ(Find<QWidget>(form, "btnFGColor").toolTip(), "Page Foreground Color");
    EXPECT_EQ(Find<QWidget>(form, "btnLinkColor").toolTip(), "Page Link Color");
    EXPECT_EQ(Find<QWidget>(form, "btnVisitedLinkColor").toolTip(), "Page Visited Link Color");
    EXPECT_EQ(Find<QWidget>(form, "btnActiveLinkColor").toolTip(), "Page Active Link Color");
    EXPECT_EQ(Find<QPushButton>(form, "OKButton").text(), "&Apply");
    EXPECT_EQ(Find<QPushButton>(form, "CancelButton").text(), "&Cancel");
  });
}

TEST_F(SelectColorsForm, AButtonAndItsPlaceOnTheSamplePageChooseTheSameColor) {
  for (const Pair& pair : kPairs) {
    for (const char* control : {pair.button, pair.element}) {
      const core::PageColors before = colors;
      dialogs.colors = {0x123456};
      EXPECT_TRUE(Edit([&](QWidget& form) {
        if (control == pair.element && pair.color == &core::PageColors::background) {
          QTest::mouseClick(&Find<QWidget>(form, control), Qt::LeftButton, {}, QPoint(4, 4));  // next to the labels
        } else {
          Click(form, control);
        }
        core::PageColors expected = before;
        expected.*pair.color = 0x123456;
        EXPECT_EQ(Shown(form), expected) << control;
        Click(form, "OKButton");
      }));
      EXPECT_EQ(dialogs.colorsShown.back(), before.*pair.color) << control;
      EXPECT_EQ(colors.*pair.color, 0x123456U) << control;
      colors = before;
    }
  }
}

TEST_F(SelectColorsForm, ANewBackgroundKeepsTheTextColorsOfTheLabels) {
  dialogs.colors = {0x123456};
  Edit([this](QWidget& form) {
    Click(form, "btnBGColor");
    for (const Pair& pair : kPairs) {
      const QPalette palette = Find<QWidget>(form, pair.element).palette();
      EXPECT_EQ(FromQt(palette.color(QPalette::Window)), 0x123456U) << pair.element;
      if (pair.color == &core::PageColors::background) continue;
      EXPECT_EQ(FromQt(palette.color(QPalette::WindowText)), colors.*pair.color) << pair.element;
    }
  });
}

TEST_F(SelectColorsForm, AClickOnALabelIsNotAClickOnThePage) {
  dialogs.colors = {std::nullopt};
  Edit([](QWidget& form) { Click(form, "lblLink"); });
  EXPECT_EQ(dialogs.colorsShown.size(), 1U);
}

TEST_F(SelectColorsForm, APressReleasedElsewhereOpensNothing) {
  Edit([](QWidget& form) {
    for (const Pair& pair : kPairs) {
      auto& element = Find<QWidget>(form, pair.element);
      QTest::mousePress(&element, Qt::LeftButton, {}, QPoint(2, 2));
      QTest::mouseRelease(&element, Qt::LeftButton, {}, QPoint(2, -3));
    }
  });
  EXPECT_TRUE(dialogs.colorsShown.empty());
}

TEST_F(SelectColorsForm, TheColorsOfTheOtherPageCanBeCopied) {
  EXPECT_TRUE(Edit([this](QWidget& form) {
    EXPECT_EQ(Find<QPushButton>(form, "btnUseOtherColors").text(), "Copy Image Wrapper Colors");
    Click(form, "btnUseOtherColors");
    EXPECT_EQ(Shown(form), others);
    Click(form, "OKButton");
  }));
  EXPECT_EQ(colors, others);
}

TEST_F(SelectColorsForm, ACopyThatIsCancelledChangesNothing) {
  const core::PageColors before = colors;
  for (const bool byButton : {true, false}) {
    EXPECT_FALSE(Edit(
        [byButton](QWidget& form) {
          EXPECT_EQ(Find<QPushButton>(form, "btnUseOtherColors").text(), "Copy Thumbnail Page Colors");
          Click(form, "btnUseOtherColors");
          if (byButton) {
            Click(form, "CancelButton");
          } else {
            QTest::keyClick(&form, Qt::Key_Escape);
          }
        },
        "Select Image Wrapper Colors"));
    EXPECT_EQ(colors, before);
  }
}

TEST_F(SelectColorsForm, EnterApplies) {
  EXPECT_TRUE(Edit([](QWidget& form) { QTest::keyClick(&form, Qt::Key_Return); }));
}

TEST_F(SelectColorsForm, HasADefaultTitle) {
  Edit([](QWidget& form) { EXPECT_EQ(form.windowTitle(), "Color Settings"); }, "");
}

}  // namespace
}  // namespace vantorium::ui
