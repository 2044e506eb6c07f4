#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmLinks.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class LinksForm : public testing::Test {
 protected:
  /// Edits `link` in the dialog and returns the resulting fields, separated by "|".
  std::string Edit(const core::LinkSettings& link, const std::function<void(QWidget&)>& drive,
                   const std::string& label = "Link Graphic &on last Image Wrapper") {
    core::LinkSettings result;
    DriveModal(
        [&] {
          result = EditLink(
              "\"Next Image\" Link", label, link, folder, browser, paths, [this] { ++edits; }, nullptr);
        },
        drive);
    return result.textLinkLabel + "|" + result.textLinkGraphic + "|" + result.textLinkGraphicDisabled;
  }

  env::PathMap paths{{{'C', "/home/me"}}};
  std::string folder = "C:\\graphics\\";
  fakes::ScriptedFileBrowser browser;
  int edits = 0;
};

TEST_F(LinksForm, ShowsItsLinkWithTheFocusOnTheLabel) {
  const std::string result = Edit({"NEXT", "C:\\a.gif", "C:\\b.gif"}, [](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "\"Next Image\" Link");
    EXPECT_TRUE(Find<QWidget>(form, "textLinkLabel").hasFocus());
    EXPECT_EQ(Find<QLineEdit>(form, "textLinkLabel").text(), "NEXT");
    EXPECT_EQ(Find<QLineEdit>(form, "textLinkGraphic").text(), "C:\\a.gif");
    EXPECT_EQ(Find<QLineEdit>(form, "textLinkGraphicDisabled").text(), "C:\\b.gif");
    EXPECT_EQ(Find<QLabel>(form, "lblFirstLastLink").text(), "Link Graphic &on last Image Wrapper");
    EXPECT_EQ(Find<QPushButton>(form, "OKButton").text(), "&Close");
    Click(form, "OKButton");
  });
  EXPECT_EQ(result, "NEXT|C:\\a.gif|C:\\b.gif");
  EXPECT_EQ(edits, 0);
}

TEST_F(LinksForm, WithoutALabelTheSecondGraphicIsHidden) {
  Edit(
      {},
      [](QWidget& form) {
        EXPECT_FALSE(Find<QWidget>(form, "textLinkGraphicDisabled").isVisible());
        EXPECT_FALSE(Find<QWidget>(form, "btnLinkGraphicDisabledBrowse").isVisible());
        EXPECT_FALSE(Find<QWidget>(form, "lblFirstLastLink").isVisible());
        EXPECT_TRUE(Find<QWidget>(form, "btnLinkGraphicBrowse").isVisible());
      },
      "");
}

TEST_F(LinksForm, TheOnlyGraphicOfALinkCanBeRemoved) {
  const auto type = [this](const core::LinkSettings& link, const char* text) {
    return Edit(
        link,
        [text](QWidget& form) {
          Type(Find<QWidget>(form, "textLinkGraphic"), text);
          EXPECT_EQ(Find<QLineEdit>(form, "textLinkGraphicDisabled").text(), "") << "a hidden box is not filled";
          Click(form, "OKButton");
        },
        "");
  };
  EXPECT_EQ(type({"INDEX", "", ""}, "C:\\a.gif"), "INDEX|C:\\a.gif|");
  EXPECT_EQ(type({"INDEX", "C:\\a.gif", ""}, ""), "INDEX||");
  EXPECT_EQ(type({"INDEX", "C:\\a.gif", "C:\\a.gif"}, ""), "INDEX||C:\\a.gif") << "kept from an older project";
}

TEST_F(LinksForm, TheSecondGraphicHasAMnemonic) {
  Edit({}, [](QWidget& form) {
    QTest::keyClick(&form, Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(Find<QWidget>(form, "textLinkGraphicDisabled").hasFocus());
    QTest::keyClick(&form, Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(Find<QWidget>(form, "textLinkGraphic").hasFocus());
  });
}

TEST_F(LinksForm, HasDefaultTextsIfTheCallerGivesNone) {
  LinksModel model({}, paths, folder, [] {});
  frmLinks form("", "", model, browser, nullptr);
  EXPECT_EQ(form.windowTitle(), "Link");
  EXPECT_EQ(Find<QLabel>(form, "lblFirstLastLink").text(), "&First/Last Link Graphic");
}

TEST_F(LinksForm, PastedTextBecomesOneLine) {
  EXPECT_EQ(Edit({"NEXT", "", "C:\\b.gif"},
                 [](QWidget& form) {
                   QApplication::clipboard()->setText("\tC:\\next.gif\r\n");
                   Find<QLineEdit>(form, "textLinkGraphic").paste();
                   auto& label = Find<QLineEdit>(form, "textLinkLabel");
                   QApplication::clipboard()->setText("\r\nT\r\nüR");
                   label.setCursorPosition(2);
                   label.paste();
                   EXPECT_EQ(label.cursorPosition(), 5);
                 }),
            "NETüRXT|C:\\next.gif|C:\\b.gif");
}

TEST_F(LinksForm, TheLabelCanBeEdited) {
  EXPECT_EQ(Edit({"NEXT", "", ""}, [](QWidget& form) { Type(Find<QLineEdit>(form, "textLinkLabel"), "Weiter >"); }),
            "Weiter >||");
  EXPECT_GT(edits, 0);
}

TEST_F(LinksForm, OneGraphicFollowsTheOtherWhileItIsTyped) {
  for (const bool first : {true, false}) {
    const char* typed = first ? "textLinkGraphic" : "textLinkGraphicDisabled";
    const char* following = first ? "textLinkGraphicDisabled" : "textLinkGraphic";
    const std::string result = Edit({}, [&](QWidget& form) {
      auto& box = Find<QLineEdit>(form, typed);
      box.setFocus();
      QTest::keyClicks(&box, "C:\\ne");
      EXPECT_EQ(Find<QLineEdit>(form, following).text(), "C:\\ne");
      Find<QLineEdit>(form, "textLinkLabel").setFocus();
      box.setFocus();
      QTest::keyClicks(&box, "xt");
      EXPECT_EQ(Find<QLineEdit>(form, following).text(), "C:\\ne") << "after the box is left";
      Click(form, "OKButton");
    });
    EXPECT_EQ(result, first ? "|C:\\next|C:\\ne" : "|C:\\ne|C:\\next");
  }
}

TEST_F(LinksForm, ANativePathBecomesPathTextWhenItsBoxIsLeft) {
  Edit({}, [](QWidget& form) {
    auto& box = Find<QLineEdit>(form, "textLinkGraphic");
    Type(box, "/home/me/next.gif");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.text(), "C:\\next.gif");
    EXPECT_EQ(Find<QLineEdit>(form, "textLinkGraphicDisabled").text(), "C:\\next.gif");
  });
}

TEST_F(LinksForm, TwoGraphicsCanBeBrowsedForOneAfterTheOther) {
  browser.answer.result = "C:\\new\\a.gif";
  const std::string result = Edit({}, [this](QWidget& form) {
    Click(form, "btnLinkGraphicBrowse");
    EXPECT_TRUE(Find<QWidget>(form, "textLinkGraphic").hasFocus());
    EXPECT_EQ(Find<QLineEdit>(form, "textLinkGraphicDisabled").text(), "C:\\new\\a.gif");
    browser.answer.result = "C:\\new\\b.gif";
    Click(form, "btnLinkGraphicDisabledBrowse");
    Click(form, "OKButton");
  });
  EXPECT_EQ(result, "|C:\\new\\a.gif|C:\\new\\b.gif");
  EXPECT_EQ(folder, "C:\\new\\");
  EXPECT_EQ(browser.requests.at(0).initialFolder, "C:\\graphics\\");
}

TEST_F(LinksForm, EveryWayOfClosingCopiesTheOtherGraphicToAMissingOne) {
  const core::LinkSettings link = {"NEXT", "", "C:\\b.gif"};
  const std::string expected = "NEXT|C:\\b.gif|C:\\b.gif";
  EXPECT_EQ(Edit(link, [](QWidget& form) { Click(form, "OKButton"); }), expected);
  EXPECT_EQ(Edit(link, [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Return); }), expected);
  EXPECT_EQ(Edit(link, [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }), expected);
  EXPECT_EQ(Edit(link, [](QWidget& form) { form.close(); }), expected);
}

TEST_F(LinksForm, TwoEmptyGraphicsStayEmpty) {
  EXPECT_EQ(Edit({"NEXT", "", ""}, [](QWidget& form) { Click(form, "OKButton"); }), "NEXT||");
  EXPECT_EQ(edits, 0);
}

}  // namespace
}  // namespace vantorium::ui
