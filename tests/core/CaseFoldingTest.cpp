#include "core/CaseFolding.h"

#include <utility>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

TEST(CaseFolding, TextsThatDifferOnlyInCaseFoldToTheSameText) {
  const std::pair<const char*, const char*> cases[] = {
      {"ABC.jpg", "abc.JPG"},
      {"\u00C4\u00D6\u00DC", "\u00E4\u00F6\u00FC"},
      {"Stra\u00DFe", "STRASSE"},
      {"\u03A3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C2", "\u03C3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C3"},
      {"\u0416", "\u0436"}};
  for (const auto& [left, right] : cases) EXPECT_EQ(FoldCase(left), FoldCase(right)) << left;
}

TEST(CaseFolding, OtherTextsFoldToDifferentTexts) {
  const std::pair<const char*, const char*> cases[] = {{"a", "b"}, {"a", "\u00E4"}, {"a", "a "}, {"a_1", "a-1"}};
  for (const auto& [left, right] : cases) EXPECT_NE(FoldCase(left), FoldCase(right)) << left;
}

TEST(CaseFolding, AsciiFoldsToLowercase) {
  EXPECT_EQ(FoldCase("IMG_0001 (Copy).JPG"), "img_0001 (copy).jpg");
  EXPECT_EQ(FoldCase(""), "");
}

TEST(CaseFolding, InvalidUTF8IsUnchanged) {
  const std::pair<const char*, const char*> cases[] = {{"\xFFZ", "\xFFz"}, {"Z\xC3", "z\xC3"}, {"Z\x80", "z\x80"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(FoldCase(text), expected);
}

TEST(CaseFolding, LettersAndDigitsOfEveryScriptAreRecognized) {
  for (const char* text : {"a", "Z.", "7", "\u00E9", "\u0416x", "\u0663", "\u6F22", "\U00010400"}) {
    EXPECT_TRUE(BeginsWithLetterOrDigit(text)) << text;
  }
  for (const char* text : {"", ".a", "_a", " a", "-", "\u20AC", "\u2026", "\xFF", "\xC3"}) {
    EXPECT_FALSE(BeginsWithLetterOrDigit(text)) << text;
  }
}

}  // namespace
}  // namespace vantorium::core
