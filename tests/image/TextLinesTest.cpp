#include "image/TextLines.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using Lines = std::vector<std::string>;

TEST(TextLines, EachKindOfBreakEndsALine) {
  struct Case {
    std::string text;
    Lines lines;
  };
  for (const Case& c : {Case{"a", {"a"}}, Case{"a\r\nb", {"a", "b"}}, Case{"a\nb", {"a", "b"}},
                        Case{"a\rb", {"a", "b"}}, Case{"a\r\n\r\nb", {"a", "", "b"}}, Case{"a\n\rb", {"a", "", "b"}},
                        Case{"\r\na", {"", "a"}}, Case{"a\n\n\nb", {"a", "", "", "b"}}}) {
    EXPECT_EQ(LinesOfText(c.text), c.lines) << c.text;
  }
}

TEST(TextLines, ABreakAtTheEndBeginsNoNewLine) {
  EXPECT_EQ(LinesOfText("a\r\n"), Lines({"a"}));
  EXPECT_EQ(LinesOfText("a\r\n\r\n"), Lines({"a", ""}));
  EXPECT_EQ(LinesOfText("\n"), Lines({""}));
}

TEST(TextLines, AnEmptyTextHasNoLines) {
  EXPECT_EQ(LinesOfText(""), Lines());
}

TEST(TextLines, ControlCharactersBecomeBlanks) {
  EXPECT_EQ(LinesOfText("a\tb\x01"
                        "c\x7F"
                        "d"),
            Lines({"a b c d"}));
}

TEST(TextLines, InvalidUTF8IsReplaced) {
  EXPECT_EQ(LinesOfText("a\xFF"
                        "b"),
            Lines({"a\uFFFDb"}));
  EXPECT_EQ(LinesOfText("\xC3"), Lines({"\uFFFD"}));
  EXPECT_EQ(LinesOfText(std::string_view("a\0b", 3)), Lines({"a\uFFFDb"}));
}

}  // namespace
}  // namespace vantorium::image
