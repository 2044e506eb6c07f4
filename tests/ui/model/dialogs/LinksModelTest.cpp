#include "tests/fakes/ScriptedFileBrowser.h"
#include "ui/model/dialogs/LinksModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

constexpr auto kFirst = &core::LinkSettings::textLinkGraphic;
constexpr auto kSecond = &core::LinkSettings::textLinkGraphicDisabled;

class LinkDialog : public testing::Test {
 protected:
  LinksModel Model(const core::LinkSettings& link) {
    return {link, paths, folder, [this] { ++edits; }};
  }
  static std::string Graphics(const LinksModel& model) {
    return model.Link().textLinkGraphic + "|" + model.Link().textLinkGraphicDisabled;
  }

  env::PathMap paths{{{'C', "/home/me"}, {'Z', "/"}}};
  std::string folder = "C:\\last\\";
  fakes::ScriptedFileBrowser browser;
  int edits = 0;
};

TEST_F(LinkDialog, OpeningIsNotAnEdit) {
  const LinksModel model = Model({"NEXT", "C:\\a.gif", ""});
  EXPECT_EQ(edits, 0);
  EXPECT_FALSE(model.MirrorGraphics());
  EXPECT_EQ(model.Link().textLinkLabel, "NEXT");
  EXPECT_EQ(Graphics(model), "C:\\a.gif|");
}

TEST_F(LinkDialog, WithoutASecondGraphicTheFirstIsNeitherCopiedNorRestored) {
  LinksModel model(
      {"INDEX", "", ""}, paths, folder, [this] { ++edits; }, false);
  model.EditGraphic(kFirst, "C:\\a.gif");
  EXPECT_EQ(Graphics(model), "C:\\a.gif|");
  browser.answer.result = "C:\\b.gif";
  model.Browse(kFirst, browser);
  model.Close();
  EXPECT_EQ(Graphics(model), "C:\\b.gif|");
  EXPECT_EQ(edits, 2);
  LinksModel filled(
      {"INDEX", "C:\\a.gif", "C:\\old.gif"}, paths, folder, [] {}, false);
  filled.EditGraphic(kFirst, "");
  filled.Close();
  EXPECT_EQ(Graphics(filled), "|C:\\old.gif") << "a hidden graphic is not copied either";
}

TEST_F(LinkDialog, AnEditOfTheLabelIsAnEdit) {
  LinksModel model = Model({"NEXT", "", ""});
  model.EditLabel("NEXT");
  EXPECT_EQ(edits, 0);
  model.EditLabel("");
  EXPECT_EQ(edits, 1);
  EXPECT_EQ(model.Link().textLinkLabel, "");
}

TEST_F(LinkDialog, AnEmptySecondGraphicFollowsTheFirstLetterByLetter) {
  for (const auto& [box, other] : {std::pair(kFirst, kSecond), std::pair(kSecond, kFirst)}) {
    LinksModel model = Model({});
    for (const char* text : {"C", "C:", "C:\\", "C:\\a", "C:\\", "C:\\b"}) {
      model.EditGraphic(box, text);
      EXPECT_EQ(model.Link().*box, text);
      EXPECT_EQ(model.Link().*other, text);
    }
    EXPECT_TRUE(model.MirrorGraphics());
    model.LeaveGraphic(box);
    EXPECT_FALSE(model.MirrorGraphics());
    model.EditGraphic(box, "C:\\c");
    EXPECT_EQ(model.Link().*other, "C:\\b");
  }
  EXPECT_EQ(edits, 14);
}

TEST_F(LinkDialog, TwoGraphicsDoNotFollowEachOther) {
  LinksModel model = Model({"", "a", "b"});
  model.EditGraphic(kFirst, "ab");
  EXPECT_EQ(Graphics(model), "ab|b");
  model.EditGraphic(kFirst, "");
  EXPECT_EQ(Graphics(model), "|b");
  model.EditGraphic(kFirst, "x");
  EXPECT_EQ(Graphics(model), "x|b") << "the other graphic is not empty";
}

TEST_F(LinkDialog, AnEmptiedBoxFollowsTheOther) {
  LinksModel model = Model({"", "a", "b"});
  model.EditGraphic(kFirst, "");
  model.LeaveGraphic(kFirst);
  model.EditGraphic(kSecond, "bc");
  EXPECT_EQ(Graphics(model), "bc|bc");
  model.EditGraphic(kSecond, "");
  EXPECT_EQ(Graphics(model), "|") << "it follows even to an empty text";
}

TEST_F(LinkDialog, ATypedNativePathBecomesPathTextWhenTheBoxIsLeft) {
  LinksModel model = Model({});
  model.EditGraphic(kFirst, "/home/me/next.gif");
  EXPECT_EQ(Graphics(model), "/home/me/next.gif|/home/me/next.gif");
  model.LeaveGraphic(kFirst);
  EXPECT_EQ(Graphics(model), "C:\\next.gif|C:\\next.gif");
}

TEST_F(LinkDialog, APathThatWasNotTypedIsUnchanged) {
  LinksModel model = Model({"", "graphics/next.gif", "/b.gif"});
  model.LeaveGraphic(kFirst);
  model.LeaveGraphic(kSecond);
  model.Close();
  EXPECT_EQ(Graphics(model), "graphics/next.gif|/b.gif");
  EXPECT_EQ(edits, 0);
}

TEST_F(LinkDialog, BrowsingHasAPreviewAndBeginsAtTheLastFolderWithTheTextOfTheBox) {
  LinksModel model = Model({"", "C:\\old.gif", "C:\\dim.gif"});
  browser.answer.result = "C:\\new\\next.gif";
  model.Browse(kFirst, browser);
  const FileDialogRequest& request = browser.requests.at(0);
  EXPECT_EQ(request.title, "Select Link Graphic");
  EXPECT_EQ(request.filter, "All Files (*.*)|*.*");
  EXPECT_EQ(request.initialFolder, "C:\\last\\");
  EXPECT_EQ(request.fileName, "C:\\old.gif");
  EXPECT_TRUE(request.open);
  EXPECT_TRUE(request.preview);
  EXPECT_EQ(Graphics(model), "C:\\new\\next.gif|C:\\dim.gif");
  EXPECT_EQ(folder, "C:\\new\\");
  browser.answer.result = "";
  model.Browse(kSecond, browser);
  EXPECT_EQ(browser.requests.at(1).fileName, "C:\\dim.gif");
  EXPECT_EQ(folder, "C:\\new\\") << "nothing was chosen";
  EXPECT_EQ(edits, 1);
  browser.answer.result = "Z:\\x.gif";
  model.Browse(kSecond, browser);
  EXPECT_EQ(Graphics(model), "C:\\new\\next.gif|Z:\\x.gif");
  EXPECT_EQ(folder, "Z:\\");
}

TEST_F(LinkDialog, TheOtherGraphicFollowsABrowsedOneToo) {
  LinksModel model = Model({});
  browser.answer.result = "C:\\a.gif";
  model.Browse(kSecond, browser);
  EXPECT_EQ(Graphics(model), "C:\\a.gif|C:\\a.gif");
}

TEST_F(LinkDialog, CloseCopiesTheOtherGraphicToAMissingOne) {
  struct Case {
    core::LinkSettings link;
    const char* expected;
    int edits;
  };
  for (const Case& c : {Case{{"", "a", ""}, "a|a", 1}, Case{{"", "", "b"}, "b|b", 1}, Case{{"", "a", "b"}, "a|b", 0},
                        Case{{"", "", ""}, "|", 0}}) {
    edits = 0;
    LinksModel model = Model(c.link);
    model.Close();
    EXPECT_EQ(Graphics(model), c.expected);
    EXPECT_EQ(edits, c.edits) << c.expected;
  }
}

TEST_F(LinkDialog, CloseCompletesThePathBeingTyped) {
  LinksModel model = Model({"", "", "C:\\dim.gif"});
  model.EditGraphic(kFirst, "/home/me/n.gif");
  model.Close();
  EXPECT_EQ(Graphics(model), "C:\\n.gif|C:\\dim.gif");
}

TEST_F(LinkDialog, WithoutDrivesAGraphicIsShownAsANativePath) {
  paths = env::PathMap({}, "/home/me");
  LinksModel model = Model({"NEXT", "C:\\a.gif", "D:\\b.gif"});
  EXPECT_EQ(model.Shown(kFirst), "/home/me/a.gif");
  EXPECT_EQ(model.Shown(kSecond), "D:\\b.gif") << "it has no place on this system";
  model.LeaveGraphic(kFirst);
  EXPECT_EQ(model.Link().textLinkGraphic, "C:\\a.gif");
  EXPECT_EQ(edits, 0);
  for (const char* typed : {"C:\\c.gif", "/home/me/c.gif", "~/c.gif"}) {
    model.EditGraphic(kFirst, typed);
    EXPECT_EQ(model.Shown(kFirst), typed) << "a text is unchanged while it is typed";
    model.LeaveGraphic(kFirst);
    EXPECT_EQ(model.Shown(kFirst), "/home/me/c.gif") << typed;
    EXPECT_EQ(model.Link().textLinkGraphic, "C:\\c.gif") << typed;
  }
}

}  // namespace
}  // namespace vantorium::ui
