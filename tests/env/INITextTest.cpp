#include "env/INIText.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

TEST(INIText, ALineEndsAtCrLfCrOrLf) {
  std::string_view rest = "a\r\nb\nc\r\rd";
  std::vector<std::string> lines;
  while (!rest.empty()) {
    const INILine line = TakeINILine(rest);
    lines.push_back(std::string(line.content) + "|" + std::string(line.end));
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"a|\r\n", "b|\n", "c|\r", "|\r", "d|"}));
}

TEST(INIText, ASectionNameIsALineByItself) {
  for (const char* line : {"[FOLDERS]", "[folders]", "  [Folders]  "}) {
    EXPECT_TRUE(IsSectionLine(line, "Folders")) << line;
    EXPECT_TRUE(IsSectionLine(line)) << line;
  }
  for (const char* line : {"[FOLDERS", "FOLDERS]", "[FOLDERS] x", "[ FOLDERS]", "[FOLDER]", "[FOLDERSS]", "x[FOLDERS]",
                           "", "[]", "\xEF\xBB\xBF[FOLDERS]"}) {
    EXPECT_FALSE(IsSectionLine(line, "FOLDERS")) << line;
  }
  EXPECT_TRUE(IsSectionLine("[]", ""));
  EXPECT_FALSE(IsSectionLine("key=[x]"));
}

struct Reading {
  const char* text;
  const char* section;
  const char* key;
  std::optional<std::string> value;
};

class INIReading : public testing::TestWithParam<Reading> {};

TEST_P(INIReading, TheValueIsFound) {
  const auto& [text, section, key, value] = GetParam();
  EXPECT_EQ(FindINIString(text, section, key), value) << text << "\n" << section << " / " << key;
}

constexpr const char* kTwoSections = "[A]\r\nx=\"1\"\r\n\r\n[B]\r\ny=\"2\"\r\nx=\"3\"\r\n";

INSTANTIATE_TEST_SUITE_P(
    Plain, INIReading,
    testing::Values(Reading{kTwoSections, "A", "x", "1"}, Reading{kTwoSections, "B", "x", "3"},
                    Reading{kTwoSections, "a", "X", "1"}, Reading{kTwoSections, "b", "Y", "2"},
                    Reading{kTwoSections, "A", "z", std::nullopt}, Reading{"", "A", "x", std::nullopt},
                    Reading{"[A]\nx=1\n", "A", "x", "1"}, Reading{"[A]\rx=1\r", "A", "x", "1"},
                    Reading{"[A]\nx=1", "A", "x", "1"}, Reading{"\n[A]\n;c\nx=1", "A", "x", "1"},
                    Reading{"[a]\nCOUNT=\"7\"", "A", "Count", "7"}, Reading{"[a]\ncount=\"7\"", "A", "Count", "7"},
                    Reading{"[A]\nx=", "A", "x", ""}, Reading{"[A]\nx=1\nx=2", "A", "x", "1"},
                    Reading{"[A]\nx1=9\nx=2", "A", "x", "2"}, Reading{"[A]\n", "A", "[A]", std::nullopt}));

INSTANTIATE_TEST_SUITE_P(Quirks, INIReading,
                         testing::Values(Reading{kTwoSections, "A", "y", "2"},  // found in a later section
                                         Reading{kTwoSections, "C", "x", "3"},  // no such section: reads the last line
                                         Reading{kTwoSections, "C", "y", std::nullopt},  // but no other line
                                         Reading{"x=1", "A", "x", "1"},                  //
                                         Reading{"x=1\n", "A", "x", "1"},  // a final line end begins no new line
                                         Reading{"x=1\n\n", "A", "x", std::nullopt},        // the last line is empty
                                         Reading{"x=1\n[A]", "A", "x", std::nullopt},       // no line after the section
                                         Reading{"x=1\n[A]\ny=2", "A", "x", std::nullopt},  //
                                         Reading{"[A]\n x=1", "A", "x", std::nullopt},      // blank before a key
                                         Reading{"[A]\nx =1", "A", "x", std::nullopt},      // blank after a key
                                         Reading{"[A]\nx= 1", "A", "x", " 1"},              //
                                         Reading{"  [a]  \nx=1", "A", "x", "1"},            //
                                         Reading{"[A]\n[A]\nx=1", "A", "x", "1"}));

INSTANTIATE_TEST_SUITE_P(
    Marks, INIReading,
    testing::Values(Reading{"[A]\nx=plain", "A", "x", "plain"}, Reading{"[A]\nx=\"open", "A", "x", "ope"},
                    Reading{"[A]\nx=\"", "A", "x", ""}, Reading{"[A]\nx=\"\"", "A", "x", ""},
                    Reading{"[A]\nx=\"a\"b\"", "A", "x", "a\"b"}, Reading{"[A]\nx=\"\"a\"\"", "A", "x", "\"a\""},
                    Reading{"[A]\nx=a\"", "A", "x", "a\""}, Reading{"[A]\nx=\"a\" ", "A", "x", "a\""},
                    Reading{"[A]\nx=\"a=b;c\"", "A", "x", "a=b;c"},
                    Reading{"[A]\nx=\"C:\\gallery\\\"", "A", "x", "C:\\gallery\\"}));

struct Writing {
  const char* before;
  const char* after;
};

class INIWriting : public testing::TestWithParam<Writing> {};

TEST_P(INIWriting, OnlyTheLineOfTheKeyChanges) {
  const auto& [before, after] = GetParam();
  const std::string written = WithINIString(before, "Folders", "Key", "v");
  EXPECT_EQ(written, after) << before;
  EXPECT_EQ(FindINIString(written, "FOLDERS", "KEY"), "v") << before;
  EXPECT_EQ(WithINIString(written, "Folders", "Key", "v"), written) << "written again";
}

INSTANTIATE_TEST_SUITE_P(
    NewLines, INIWriting,
    testing::Values(Writing{"", "[Folders]\r\nKey=\"v\"\r\n"}, Writing{"\n", "\n[Folders]\nKey=\"v\"\n"},
                    Writing{"[Other]\nKey=1", "[Other]\nKey=1\n[Folders]\nKey=\"v\"\n"},
                    Writing{"no line end", "no line end\r\n[Folders]\r\nKey=\"v\"\r\n"},
                    Writing{"[Folders]", "[Folders]\r\nKey=\"v\"\r\n"},
                    Writing{"[FOLDERS]\r\n", "[FOLDERS]\r\nKey=\"v\"\r\n"},
                    Writing{"[Folders]\na=1\n\n\n[Other]\nKey=1\n", "[Folders]\na=1\nKey=\"v\"\n\n\n[Other]\nKey=1\n"},
                    Writing{"[Folders]\n\n[Other]\n", "[Folders]\nKey=\"v\"\n\n[Other]\n"},
                    Writing{"[Folders]\ra=1\r", "[Folders]\ra=1\rKey=\"v\"\r"},
                    Writing{"[Folders]\ra=1\r\n\n[Other]\n", "[Folders]\ra=1\r\nKey=\"v\"\r\n\n[Other]\n"},
                    Writing{"[Folders]\na=1", "[Folders]\na=1\nKey=\"v\"\n"},
                    Writing{"[Folders]\n;Key=1\n", "[Folders]\n;Key=1\nKey=\"v\"\n"},
                    Writing{"[Folders]\nKey\nKeys=1\n", "[Folders]\nKey\nKeys=1\nKey=\"v\"\n"},
                    Writing{"[Folders] ;c\n", "[Folders] ;c\n[Folders]\nKey=\"v\"\n"},
                    Writing{"\xEF\xBB\xBF[Folders]\n", "\xEF\xBB\xBF[Folders]\n[Folders]\nKey=\"v\"\n"}));

INSTANTIATE_TEST_SUITE_P(OldLines, INIWriting,
                         testing::Values(Writing{"[Folders]\nKey=old\nb=2\n", "[Folders]\nKey=\"v\"\nb=2\n"},
                                         Writing{"[Folders]\r\nKey=old", "[Folders]\r\nKey=\"v\""},
                                         Writing{"[folders]\nkEY=\"old\"\n", "[folders]\nkEY=\"v\"\n"},
                                         Writing{"[Folders]\n \tKey \t= old\n", "[Folders]\nKey=\"v\"\n"},
                                         Writing{"[Folders]\nKey=1\nKey=2\n", "[Folders]\nKey=\"v\"\nKey=2\n"},
                                         Writing{"[Other]\nKey=1\n[Folders]\nKey=2\n[More]\nKey=3\n",
                                                 "[Other]\nKey=1\n[Folders]\nKey=\"v\"\n[More]\nKey=3\n"},
                                         Writing{"[Folders]\na=1\n[Folders]\nKey=2\n",
                                                 "[Folders]\na=1\nKey=\"v\"\n[Folders]\nKey=2\n"},
                                         Writing{"; mine\r\n\r\n[Folders]\r\n# x\r\nKey=\"v\"\r\njunk \xFF\r\n",
                                                 "; mine\r\n\r\n[Folders]\r\n# x\r\nKey=\"v\"\r\njunk \xFF\r\n"},
                                         Writing{"[Folders]\r\na=1\nKey=2\r", "[Folders]\r\na=1\nKey=\"v\"\r"}));

TEST(INIText, AnyValueIsReadBack) {
  for (const char* value : {"", "\"", "\"\"", "a\"b", " blanks ", "a=b", "[x]", ";", "C:\\gallery\\", "\xC3\xA4\xFF"}) {
    const std::string text = WithINIString("[Other]\r\n", "A", "x", value);
    EXPECT_EQ(FindINIString(text, "A", "x"), value);
  }
}

TEST(INIText, AnyBytesCanBeRead) {
  const std::string texts[] = {std::string("\0\0[A]\0\nx=1\0\n", 12),
                               "[[[\n]]]\n===\n",
                               std::string(100'000, '['),
                               std::string(100'000, '\n'),
                               "=\n=\n",
                               "[A]\n=1\n"};
  for (const std::string& before : texts) {
    const std::string after = WithINIString(before, "A", "key", "v");
    EXPECT_EQ(FindINIString(after, "A", "key"), "v");
    EXPECT_EQ(after.size() >= before.size(), true);
  }
}

}  // namespace
}  // namespace vantorium::env
