#include "env/Text.h"

namespace vantorium::env {
namespace {

TEST(Text, OnlyAsciiLettersChangeTheirCase) {
  EXPECT_EQ(AsciiUpper("az{`AZ09 \xC3\xA4\xC3\x9F"), "AZ{`AZ09 \xC3\xA4\xC3\x9F");
  EXPECT_EQ(AsciiLower("AZ[@az09 \xC3\x84"), "az[@az09 \xC3\x84");
  EXPECT_EQ(AsciiUpper(""), "");
  EXPECT_EQ(AsciiLower(std::string_view("A\0B", 3)), std::string("a\0b", 3));
}

TEST(Text, ComparisonsIgnoreTheCaseOfAsciiLetters) {
  EXPECT_TRUE(EqualsIgnoringCase("", ""));
  EXPECT_TRUE(EqualsIgnoringCase("Key", "kEY"));
  EXPECT_FALSE(EqualsIgnoringCase("Key", "Key "));
  EXPECT_FALSE(EqualsIgnoringCase("Key", "Ke"));
  EXPECT_FALSE(EqualsIgnoringCase("[", "{"));
  EXPECT_FALSE(EqualsIgnoringCase("@", "`"));
  EXPECT_FALSE(EqualsIgnoringCase("\xC3\x84", "\xC3\xA4"));
}

TEST(Text, FindIgnoresCase) {
  struct Case {
    std::string_view text, part;
    std::size_t start, at;
  };
  constexpr auto kNone = std::string_view::npos;
  const Case cases[] = {{"a<B>c", "<b>", 0, 1},     {"<b><B>", "<B>", 1, 3},  {"<b>", "<b>", 0, 0},
                        {"xxAB", "ab", 2, 2},       {"xxAB", "ab", 3, kNone}, {"ab", "abc", 0, kNone},
                        {"", "a", 0, kNone},        {"abc", "", 0, kNone},    {"abc", "a", 4, kNone},
                        {"abc", "a", kNone, kNone}, {"aab", "ab", 0, 1},      {"a1A2", "A2", 0, 2},
                        {"<<b", "<B", 0, 1}};
  for (const auto& [text, part, start, at] : cases) {
    EXPECT_EQ(FindIgnoringCase(text, part, start), at) << text << " | " << part << " | " << start;
  }
}

TEST(Text, AFixedSizeTextEndsAtTheFirstNulAndIsTrimmed) {
  const std::pair<std::string_view, std::string_view> cases[] = {{{"  a b  \0 c\0\0", 12}, "a b"},
                                                                 {{"\0a", 2}, ""},
                                                                 {{"   \0", 4}, ""},
                                                                 {"no NUL ", "no NUL"},
                                                                 {"\t a\t", "\t a\t"},
                                                                 {"", ""}};
  for (const auto& [fixed, text] : cases) EXPECT_EQ(TrimNull(fixed), text) << fixed;
}

TEST(Text, AReplacementIsNotSearchedAgain) {
  EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceAll("///", "//", "/"), "//");
  EXPECT_EQ(ReplaceAll("", "a", "b"), "");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(ReplaceAll("abc", "b", ""), "ac");
  EXPECT_EQ(ReplaceAll("abc", "B", "x"), "abc");
  EXPECT_EQ(ReplaceAllIgnoringCase("<Br><bR>", "<BR>", "<br>x"), "<br>x<br>x");
  EXPECT_EQ(ReplaceAllIgnoringCase("abc", "", "x"), "abc");
}

TEST(Text, LineFeedsBecomeCrLfAndLoneCarriageReturnsStay) {
  const std::pair<const char*, const char*> cases[] = {{"", ""},
                                                       {"a", "a"},
                                                       {"\n", "\r\n"},
                                                       {"a\nb", "a\r\nb"},
                                                       {"\r\n", "\r\n"},
                                                       {"a\r\nb\n", "a\r\nb\r\n"},
                                                       {"\n\n", "\r\n\r\n"},
                                                       {"a\rb", "a\rb"},
                                                       {"\r\r\n", "\r\r\n"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(WithCrLf(text), expected) << testing::PrintToString(text);
}

TEST(Text, AFilePrefixIsRemovedOnceInAnyCase) {
  EXPECT_EQ(WithoutFilePrefix("file:///home/a.jpg"), "/home/a.jpg");
  EXPECT_EQ(WithoutFilePrefix("FiLe://C:\\a.jpg"), "C:\\a.jpg");
  EXPECT_EQ(WithoutFilePrefix("file://file://x"), "file://x");
  EXPECT_EQ(WithoutFilePrefix("file:/x"), "file:/x");
  EXPECT_EQ(WithoutFilePrefix(" file://x"), " file://x");
  EXPECT_EQ(WithoutFilePrefix("file://"), "");
  EXPECT_EQ(WithoutFilePrefix(""), "");
}

}  // namespace
}  // namespace vantorium::env
