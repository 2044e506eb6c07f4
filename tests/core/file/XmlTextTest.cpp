#include "core/file/XmlText.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;

TEST(XmlText, CharactersThatXmlAllowsAreUnchanged) {
  for (const char* text : {"", "plain", "tab\tline\r\nend", "<&>\"'", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80",
                           "\xEF\xBF\xBD", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(IsXmlText(text)) << text;
    EXPECT_EQ(ToXmlText(text), text);
  }
}

TEST(XmlText, CharactersThatXmlForbidsBecomeTheReplacementCharacter) {
  const std::string mark = "\xEF\xBF\xBD";
  const std::pair<std::string, std::string> cases[] = {
      {std::string("a\0b", 3), "a" + mark + "b"},
      {"\x01", mark},
      {"a\x1F", "a" + mark},
      {"caf\xE9", "caf" + mark},  // Latin 1
      {"\xE9t\xC3\xA9", mark + "t\xC3\xA9"},
      {"\x80", mark},  // lone continuation byte
      {"\xC3", mark},  // truncated
      {"\xE2\x82", mark + mark},
      {"\xC0\x80", mark + mark},  // overlong
      {"\xE0\x80\x80", mark + mark + mark},
      {"\xED\xA0\x80", mark},      // surrogate
      {"\xEF\xBF\xBE", mark},      // U+FFFE
      {"\xF4\x90\x80\x80", mark},  // beyond Unicode
      {"\xF5\x80\x80\x80", mark + mark + mark + mark},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_FALSE(IsXmlText(text)) << text;
    EXPECT_EQ(ToXmlText(text), expected);
  }
}
