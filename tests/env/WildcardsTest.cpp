#include "env/Wildcards.h"

namespace vantorium::env {
namespace {

TEST(Wildcards, MatchingNames) {
  const std::pair<const char*, const char*> cases[] = {{"", ""},
                                                       {"", "*"},
                                                       {"a", "a"},
                                                       {"a", "?"},
                                                       {"a", "*"},
                                                       {"a.jpg", "*.jpg"},
                                                       {"a.b.jpg", "*.jpg"},
                                                       {"abc", "a*c"},
                                                       {"ac", "a*c"},
                                                       {"abcbc", "a*bc"},
                                                       {"abc", "***"},
                                                       {"abc", "a?c"},
                                                       {"abc", "*?"},
                                                       {"\xC3\xA4", "?"},
                                                       {"\xE2\x82\xAC.jpg", "?.jpg"},
                                                       {"\xFF", "?"},
                                                       {"\xC3", "?"},
                                                       {"[1]", "[1]"},
                                                       {"photo[1].jpg", "photo[1]*"},
                                                       {".x", "*"},
                                                       {"a*", "a*"}};
  for (const auto& [name, pattern] : cases) EXPECT_TRUE(MatchesWildcards(name, pattern)) << name << " | " << pattern;
}

TEST(Wildcards, NamesThatDoNotMatch) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "a"},   {"", "?"},           {"a", ""},      {"a", "b"},   {"a", "A"},         {"ab", "?"}, {"ab", "a"},
      {"a", "ab"}, {"a.jpeg", "*.jpg"}, {"abd", "a*c"}, {"1", "[1]"}, {"\xC3\xA4", "??"}, {"a", "*??"}};
  for (const auto& [name, pattern] : cases) EXPECT_FALSE(MatchesWildcards(name, pattern)) << name << " | " << pattern;
}

TEST(Wildcards, ManyStarsDoNotTakeExponentialTime) {
  std::string pattern;
  for (int n = 0; n < 100; ++n) pattern += "a*";
  EXPECT_FALSE(MatchesWildcards(std::string(2000, 'a'), pattern + "b"));
}

}  // namespace
}  // namespace vantorium::env
