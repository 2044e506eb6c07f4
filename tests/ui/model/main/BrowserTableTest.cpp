#include "env/mINIFileFunctions.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/model/BrowserFakes.h"
#include "ui/model/main/BrowserTable.h"

namespace vantorium::ui {
namespace {

/// A main window that records the calls, and a user of frmBrowserList.
class RecordingHost : public BrowserTableHost {
 public:
  void ShowBrowserList(BrowserList& list) override {
    journal.emplace_back("list");
    if (user) user(list);
  }
  void ShowBrowserMenus(const BrowserMenus& menus) override {
    journal.push_back("menus of " + std::to_string(menus.ViewBrowser.size()));
  }
  void ShowBusyPointer(bool busy) override { journal.emplace_back(busy ? "busy" : "idle"); }
  void SetStatusText(const std::string& text) override { journal.push_back("status " + text); }

  std::vector<std::string> journal;
  std::function<void(BrowserList&)> user;
};

class BrowserTableTest : public testing::Test {
 protected:
  bool Edit(Browsers& browsers) { return EditBrowsers(browsers, file, host, dialog, boxes); }

  fakes::TemporaryFolder folder;
  std::filesystem::path file = folder.Path() / "vantorium.ini";
  RecordingHost host;
  fakes::ScriptedEntryDialog dialog;
  fakes::RecordingMessageBox boxes;
};

TEST_F(BrowserTableTest, TheMenusAreRebuiltBeforeTheFileIsWritten) {
  Browsers browsers = {{"a", "1"}};
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(host.journal, (std::vector<std::string>{"list", "menus of 1", "busy",
                                                    "status Writing file \"vantorium.ini\"...", "status ", "idle"}));
}

TEST_F(BrowserTableTest, EveryOpeningReversesTheStoredOrder) {
  Browsers browsers = {{"a", "1"}, {"b", "2"}};
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(browsers, (Browsers{{"b", "2"}, {"a", "1"}}));
  EXPECT_EQ(folder.Read("vantorium.ini"),
            "[BROWSERS]\r\n"
            "Count=\"2\"\r\n"
            "Name1=\"b\"\r\n"
            "Location1=\"2\"\r\n"
            "Name2=\"a\"\r\n"
            "Location2=\"1\"\r\n");
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(browsers, (Browsers{{"a", "1"}, {"b", "2"}}));
}

TEST_F(BrowserTableTest, EditsApplyToTheListAsItIsShown) {
  Browsers browsers = {{"a", "1"}, {"b", "2"}};
  dialog.Types("c", "3");
  host.user = [](BrowserList& list) {
    list.PressAdd();
    list.Select(1);
    list.PressRemove();
  };
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(browsers, (Browsers{{"c", "3"}, {"a", "1"}}));
  EXPECT_EQ(host.journal.at(1), "menus of 2");
}

TEST_F(BrowserTableTest, AnEmptyListHasACountOfZeroAndOldEntriesAreNotRead) {
  folder.Write("vantorium.ini", "; mine\n[BROWSERS]\nCount=\"1\"\nName1=\"a\"\nLocation1=\"1\"\n");
  Browsers browsers = {{"a", "1"}};
  host.user = [](BrowserList& list) {
    list.Select(0);
    list.PressRemove();
  };
  EXPECT_TRUE(Edit(browsers));
  EXPECT_TRUE(browsers.empty());
  EXPECT_EQ(folder.Read("vantorium.ini"), "; mine\n[BROWSERS]\nCount=\"0\"\nName1=\"a\"\nLocation1=\"1\"\n");
}

TEST_F(BrowserTableTest, ANinthBrowserOfAnEditIsKeptUntilTheProgramEnds) {
  Browsers browsers = Numbered(8);
  dialog.Types("x", "y");
  host.user = [](BrowserList& list) {
    list.Select(0);
    list.PressEdit();
  };
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(browsers.size(), 9U);
  EXPECT_EQ(browsers[0], (env::Browser{"x", "y"}));
  EXPECT_EQ(env::ReadINIInteger("BROWSERS", "Count", file), 8);
}

TEST_F(BrowserTableTest, TheFolderOfTheFileIsCreatedIfMissing) {
  file = folder.Path() / "a/b/vantorium.ini";
  Browsers browsers = {{"a", "1"}};
  EXPECT_TRUE(Edit(browsers));
  EXPECT_EQ(env::ReadINIString("BROWSERS", "Name1", file), "a");
}

TEST_F(BrowserTableTest, AFailedWriteKeepsTheListAndClearsTheStatus) {
  file = folder.Write("file", "x") / "vantorium.ini";
  Browsers browsers = {{"a", "1"}, {"b", "2"}};
  EXPECT_FALSE(Edit(browsers));
  EXPECT_EQ(browsers, (Browsers{{"b", "2"}, {"a", "1"}}));
  EXPECT_EQ(host.journal.back(), "idle");
  EXPECT_TRUE(boxes.boxes.empty());
}

}  // namespace
}  // namespace vantorium::ui
