#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/BrowserEntry.h"

namespace vantorium::ui {
namespace {

TEST(BrowserEntry, OKIsEnabledAtFirstOnlyWithBothTexts) {
  for (const auto& [name, location, enabled] : {std::tuple{"", "", false},
                                                {"name", "", false},
                                                {"", "C:\\b", false},
                                                {"name", "C:\\b", true},
                                                {" ", " ", true}}) {
    BrowserEntry entry("Edit Browser", {name, location});
    EXPECT_FALSE(entry.IsOKEnabled()) << "not before it is shown";
    entry.ComeUp();
    EXPECT_EQ(entry.IsOKEnabled(), enabled) << name << " at " << location;
    EXPECT_EQ(entry.Title(), "Edit Browser");
    EXPECT_EQ(entry.Texts(), (env::Browser{name, location}));
  }
}

TEST(BrowserEntry, EachChangeUpdatesOK) {
  BrowserEntry entry("Add Browser", {});
  entry.ComeUp();
  entry.ChangeName("a");
  EXPECT_FALSE(entry.IsOKEnabled());
  entry.ChangeLocation("b");
  EXPECT_TRUE(entry.IsOKEnabled());
  entry.ChangeName("");
  EXPECT_FALSE(entry.IsOKEnabled());
  entry.ChangeName("a");
  entry.ChangeLocation("");
  EXPECT_FALSE(entry.IsOKEnabled());
}

TEST(BrowserEntry, AChosenExecutableEnablesOKForAnyName) {
  BrowserEntry entry("Add Browser", {});
  entry.ComeUp();
  entry.TakeExecutable("");
  EXPECT_FALSE(entry.IsOKEnabled());
  entry.TakeExecutable("C:\\b");
  EXPECT_EQ(entry.Texts(), (env::Browser{"", "C:\\b"}));
  EXPECT_TRUE(entry.IsOKEnabled());
  entry.ChangeName("");
  EXPECT_FALSE(entry.IsOKEnabled()) << "after the next change the rule applies again";
}

TEST(BrowserEntry, ACancelledChoiceKeepsTheLocation) {
  BrowserEntry entry("Edit Browser", {"a", "b"});
  entry.ComeUp();
  entry.TakeExecutable("");
  EXPECT_EQ(entry.Texts(), (env::Browser{"a", "b"}));
}

TEST(BrowserEntry, ANativePathBecomesPathTextAndACommandLineIsUnchanged) {
  const fakes::TemporaryFolder disk;
  const env::PathMap paths{{{'C', disk.Path().string()}}};
  const std::string folder = disk.Write("bin dir/fox", "").parent_path().string();
  const std::string usr = disk.Path().string() + "/usr";
  for (const auto& [typed, stored] : {std::pair{folder + "/fox", std::string("C:\\bin dir\\fox")},
                                      {folder + "/fox --new", folder + "/fox --new"},
                                      {usr + "/fox", "C:\\usr\\fox"},
                                      {usr + "/fox --new", usr + "/fox --new"},
                                      {"fox", "fox"},
                                      {"C:\\bin\\fox -x", "C:\\bin\\fox -x"},
                                      {"/" + std::string(100000, 'a') + " b", "/" + std::string(100000, 'a') + " b"},
                                      {"", ""}}) {
    BrowserEntry entry("Add Browser", {"a", typed});
    entry.LeaveLocation(paths);
    EXPECT_EQ(entry.Texts(), (env::Browser{"a", stored})) << typed;
  }
}

TEST(BrowserEntry, OnlyAnEnabledOKConfirms) {
  BrowserEntry entry("Add Browser", {"a", ""});
  entry.ComeUp();
  entry.PressOK();
  EXPECT_TRUE(entry.Cancelled());
  entry.ChangeLocation("b");
  entry.PressOK();
  EXPECT_FALSE(entry.Cancelled());
  entry.PressCancel();
  EXPECT_TRUE(entry.Cancelled());
}

TEST(BrowserEntry, EachTimeItIsShownItIsUnconfirmed) {
  BrowserEntry entry("Add Browser", {"a", "b"});
  entry.ComeUp();
  entry.PressOK();
  entry.ComeUp();
  EXPECT_TRUE(entry.Cancelled()) << "closing the window is a cancel";
  EXPECT_EQ(entry.Texts(), (env::Browser{"a", "b"}));
}

}  // namespace
}  // namespace vantorium::ui
