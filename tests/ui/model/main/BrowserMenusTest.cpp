#include "ui/model/main/BrowserMenus.h"

#include <ostream>

namespace vantorium::ui {

static std::ostream& operator<<(std::ostream& stream, const BrowserClick& click) {
  return stream << "kind " << static_cast<int>(click.kind) << " index " << click.BrowserIndex;
}

namespace {

std::vector<env::Browser> Browsers(int count) {
  std::vector<env::Browser> browsers;
  for (int n = 1; n <= count; ++n) browsers.push_back({"B" + std::to_string(n), "C:\\" + std::to_string(n)});
  return browsers;
}

/// The entries, one per line: "position text key".
std::string Lines(const std::vector<BrowserMenuEntry>& entries) {
  std::string lines;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    lines += std::to_string(i + 1) + " " + entries[i].Text + " " + (entries[i].IsSeparator() ? "" : entries[i].Key);
    lines += "\n";
  }
  return lines;
}

TEST(BrowserMenus, AnEmptyListHasTheDefaultBrowserASeparatorAndTheDialog) {
  const BrowserMenus menus = RebuildBrowserMenus({});
  EXPECT_EQ(Lines(menus.DropDown),
            "1 ...in Default Browser default\n"
            "2 - \n"
            "3 Available Browsers... available\n");
  EXPECT_EQ(menus.ViewBrowser, std::vector<std::string>{});
}

TEST(BrowserMenus, EachBrowserHasAnEntryBetweenTwoSeparatorsAndOneInTheMenu) {
  const BrowserMenus menus = RebuildBrowserMenus({{"One", "C:\\1"}, {"Two & more", "C:\\2"}});
  EXPECT_EQ(Lines(menus.DropDown),
            "1 ...in Default Browser default\n"
            "2 - \n"
            "3 ...in One browser1\n"
            "4 ...in Two & more browser2\n"
            "5 - \n"
            "6 Available Browsers... available\n");
  EXPECT_EQ(menus.ViewBrowser, (std::vector<std::string>{"...in One", "...in Two & more"}));
}

TEST(BrowserMenus, ABrowserWithAnyNameIsNotASeparator) {
  for (const char* name : {"", "-", "default", "available"}) {
    const BrowserMenus menus = RebuildBrowserMenus({{name, "C:\\1"}});
    EXPECT_EQ(menus.DropDown.at(2), (BrowserMenuEntry{std::string("...in ") + name, "browser1"})) << name;
    EXPECT_FALSE(menus.DropDown.at(2).IsSeparator()) << name;
  }
}

TEST(BrowserMenus, PositionsAreRightForEveryCountOfBrowsers) {
  for (int count = 1; count <= 8; ++count) {
    const BrowserMenus menus = RebuildBrowserMenus(Browsers(count));
    const auto size = static_cast<std::size_t>(count);
    ASSERT_EQ(menus.DropDown.size(), size + 4) << count;
    EXPECT_TRUE(menus.DropDown[size + 2].IsSeparator()) << count;
    EXPECT_EQ(menus.DropDown[size + 3].Key, "available") << count;
    EXPECT_EQ(menus.ViewBrowser.size(), size) << count;
  }
}

TEST(BrowserMenus, AClickOnAnEntryChoosesItsBrowser) {
  using Kind = BrowserClick::Kind;
  const BrowserMenus menus = RebuildBrowserMenus(Browsers(8));
  const auto click = [&](int position) {
    return DropDownClick(6, menus.DropDown.at(static_cast<std::size_t>(position) - 1).Key,
                         static_cast<std::int16_t>(position));
  };
  EXPECT_EQ(click(1), (BrowserClick{Kind::View, 0}));
  for (std::int16_t n = 1; n <= 8; ++n) EXPECT_EQ(click(n + 2), (BrowserClick{Kind::View, n}));
  EXPECT_EQ(click(12), (BrowserClick{Kind::List, 0}));
}

TEST(BrowserMenus, TheKeyTakesPrecedenceOverThePosition) {
  using Kind = BrowserClick::Kind;
  EXPECT_EQ(DropDownClick(6, "default", 5), (BrowserClick{Kind::View, 0}));
  EXPECT_EQ(DropDownClick(6, "available", 3), (BrowserClick{Kind::List, 0}));
  EXPECT_EQ(DropDownClick(6, "browser1", 4), (BrowserClick{Kind::View, 2}));
}

TEST(BrowserMenus, TheListOfAnotherButtonIsIgnored) {
  for (const int button : {0, 1, 5, 7, -6}) {
    for (const char* key : {"default", "available", "browser1"}) {
      EXPECT_EQ(DropDownClick(button, key, 1), BrowserClick{}) << button << " " << key;
    }
  }
}

}  // namespace
}  // namespace vantorium::ui
