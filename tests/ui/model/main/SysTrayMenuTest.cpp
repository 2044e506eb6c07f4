#include "ui/model/main/SysTrayMenu.h"

#include <limits>

namespace vantorium::ui {
namespace {

/// The entries in brackets: caption=key, with "*" before the default entry and "!" after a disabled one.
std::string Told(const SysTrayMenu& menu) {
  std::string told;
  for (std::size_t n = 0; n < menu.Items().size(); ++n) {
    const SysTrayMenuItem& item = menu.Items()[n];
    told += static_cast<std::int32_t>(n) == menu.DefaultMenuIndex() ? "[*" : "[";
    told += item.Caption + "=" + item.Key + (item.Enabled ? "]" : "!]");
  }
  return told;
}

SysTrayMenu MenuOf(int entries) {
  SysTrayMenu menu;
  for (int n = 0; n < entries; ++n) menu.AddMenuItem(std::to_string(n), "key" + std::to_string(n));
  return menu;
}

constexpr std::int32_t kFarOut[] = {-1, 3, 1000, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()};

TEST(SysTrayMenu, IsEmptyAtFirst) {
  const SysTrayMenu menu;
  EXPECT_EQ(Told(menu), "");
  EXPECT_EQ(menu.DefaultMenuIndex(), -1);
  EXPECT_EQ(menu.ToolTip(), "");
}

TEST(SysTrayMenu, EntriesAreCountedFromZero) {
  SysTrayMenu menu;
  EXPECT_EQ(menu.AddMenuItem("&One", "one"), 0);
  EXPECT_EQ(menu.AddMenuItem("-", ""), 1);
  EXPECT_EQ(menu.AddMenuItem("&Two", "two", true), 2);
  EXPECT_EQ(Told(menu), "[&One=one][-=][*&Two=two]");
  EXPECT_TRUE(menu.Items()[1].IsSeparator());
  EXPECT_FALSE(menu.Items()[0].IsSeparator());
}

TEST(SysTrayMenu, TheLastEntryAddedAsDefaultIsTheDefault) {
  SysTrayMenu menu;
  menu.AddMenuItem("a", "1", true);
  menu.AddMenuItem("b", "2", true);
  menu.AddMenuItem("c", "3");
  EXPECT_EQ(Told(menu), "[a=1][*b=2][c=3]");
}

TEST(SysTrayMenu, TheDefaultCanBeSetAndRemoved) {
  SysTrayMenu menu = MenuOf(3);
  menu.SetDefaultMenuIndex(2);
  EXPECT_EQ(menu.DefaultMenuIndex(), 2);
  for (const std::int32_t index : kFarOut) {
    menu.SetDefaultMenuIndex(1);
    menu.SetDefaultMenuIndex(index);
    EXPECT_EQ(menu.DefaultMenuIndex(), -1) << index;
  }
}

TEST(SysTrayMenu, EntriesCanBeDisabledAndEnabled) {
  SysTrayMenu menu = MenuOf(3);
  menu.EnableMenuItem(1, false);
  EXPECT_EQ(Told(menu), "[0=key0][1=key1!][2=key2]");
  menu.EnableMenuItem(1, true);
  EXPECT_EQ(Told(menu), "[0=key0][1=key1][2=key2]");
}

TEST(SysTrayMenu, AnInvalidIndexChangesNothing) {
  for (const std::int32_t index : kFarOut) {
    SysTrayMenu menu = MenuOf(3);
    menu.EnableMenuItem(index, false);
    menu.RemoveMenuItem(index);
    EXPECT_EQ(Told(menu), "[0=key0][1=key1][2=key2]") << index;
  }
  SysTrayMenu empty;
  empty.RemoveMenuItem(0);
  EXPECT_EQ(Told(empty), "");
}

TEST(SysTrayMenu, EntriesAfterARemovedOneMoveUp) {
  SysTrayMenu menu = MenuOf(4);
  menu.RemoveMenuItem(1);
  EXPECT_EQ(Told(menu), "[0=key0][2=key2][3=key3]");
  menu.RemoveMenuItem(2);
  EXPECT_EQ(Told(menu), "[0=key0][2=key2]");
  EXPECT_EQ(menu.AddMenuItem("new", "new"), 2);
}

TEST(SysTrayMenu, TheDisabledStateStaysWithTheIndex) {
  SysTrayMenu menu = MenuOf(4);
  menu.EnableMenuItem(1, false);
  menu.RemoveMenuItem(1);
  EXPECT_EQ(Told(menu), "[0=key0][2=key2!][3=key3]");
}

TEST(SysTrayMenu, TheFirstEntryRemainsWithoutACaption) {
  SysTrayMenu menu = MenuOf(2);
  menu.RemoveMenuItem(0);
  EXPECT_EQ(Told(menu), "[=key0][1=key1]");
  EXPECT_EQ(menu.AddMenuItem("2", "key2"), 2) << "the index is not reused";
}

TEST(SysTrayMenu, RemovingTheDefaultLeavesNone) {
  for (const std::int32_t index : {0, 1, 2}) {
    SysTrayMenu menu = MenuOf(3);
    menu.SetDefaultMenuIndex(index);
    menu.RemoveMenuItem(index);
    EXPECT_EQ(menu.DefaultMenuIndex(), -1) << index;
  }
}

TEST(SysTrayMenu, TheDefaultKeepsItsIndexWhileSuchAnEntryExists) {
  SysTrayMenu menu = MenuOf(4);
  menu.SetDefaultMenuIndex(2);
  menu.RemoveMenuItem(1);
  EXPECT_EQ(Told(menu), "[0=key0][2=key2][*3=key3]");
  menu.RemoveMenuItem(1);
  EXPECT_EQ(Told(menu), "[0=key0][3=key3]");
  EXPECT_EQ(menu.DefaultMenuIndex(), -1);
}

std::string TipOf(const std::string& text) {
  SysTrayMenu menu;
  menu.SetToolTip(text);
  return menu.ToolTip();
}

TEST(SysTrayMenu, TheTipIsTruncatedTo63Characters) {
  EXPECT_EQ(TipOf(""), "");
  EXPECT_EQ(TipOf("Vantorium 3.0"), "Vantorium 3.0");
  for (const std::size_t length : {63U, 64U, 1000U}) {
    EXPECT_EQ(TipOf(std::string(length, 'x')), std::string(63, 'x')) << length;
  }
  std::string text(62, 'x');
  text.append("ÄÖ");
  EXPECT_EQ(TipOf(text), text.substr(0, 64)) << "a character of two bytes counts as one";
}

TEST(SysTrayMenu, TheTipEndsAtTheFirstNul) {
  using namespace std::string_literals;
  EXPECT_EQ(TipOf("one\0two"s), "one");
  EXPECT_EQ(TipOf("\0two"s), "");
}

TEST(SysTrayMenu, TheMenuOfTheProgramHasWindowHelpAboutAndClose) {
  const SysTrayMenu menu = VantoriumSysTrayMenu();
  EXPECT_EQ(Told(menu), "[*&Vantorium=vantorium][-=][&Help=help][&About...=about][-=][&Close=close]");
  EXPECT_EQ(menu.ToolTip(), "Vantorium 3.0");
}

}  // namespace
}  // namespace vantorium::ui
