#include "core/generation/LinkHazards.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

constexpr LinkStart kEverywhere[] = {LinkStart::Folder, LinkStart::Name, LinkStart::NameInRefresh};

TEST(LinkHazards, OrdinaryNamesWorkEverywhere) {
  for (const char* name : {"", "a.jpg", "Lake in May.jpg", "a_1.htm", "x.y.z", "~a", "a+b=c", "a,b;c", "(1)[2]{3}",
                           "a@b!$*^|`", "<b>", "don't.jpg", "\xC3\xA4pfel.jpg", "a:b", "1:2.htm", "..htm", "-a"}) {
    const bool hasScheme = std::string_view(name) == "a:b";
    for (const LinkStart start : kEverywhere) {
      if (hasScheme && start != LinkStart::Folder) continue;
      EXPECT_EQ(WhyLinkFails(name, start), "") << name;
    }
  }
}

TEST(LinkHazards, CharactersThatEndOrEncodeALinkFailEverywhere) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\"b.jpg", "a quotation mark ends a link"},
      {"a#1.jpg", "in a link, what follows \"#\" is a place in a page"},
      {"#", "in a link, what follows \"#\" is a place in a page"},
      {"why?.jpg", "in a link, what follows \"?\" is not part of the name"},
      {"50%.jpg", "in a link, \"%\" begins a coded character"},
      {"a%20b.jpg", "in a link, \"%\" begins a coded character"},
      {"a\tb.jpg", "tabs and line breaks are left out of a link"},
      {"a\nb.jpg", "tabs and line breaks are left out of a link"},
      {"a\rb.jpg", "tabs and line breaks are left out of a link"},
      {"a ", "a blank at its end is left out of a link"},
      {"a\x01", "a blank at its end is left out of a link"},
  };
  for (const auto& [name, reason] : cases) {
    for (const LinkStart start : kEverywhere) EXPECT_EQ(WhyLinkFails(name, start), reason) << name;
  }
}

TEST(LinkHazards, CharacterReferencesFail) {
  for (const char* name : {"a&copy.jpg", "&lt", "a&amp;b.jpg", "x&Aacute-y", "&frac12.jpg", "&&yuml.", "a&b&gt b"}) {
    for (const LinkStart start : kEverywhere) {
      EXPECT_NE(WhyLinkFails(name, start).find("stands for another character"), std::string::npos) << name;
    }
  }
  EXPECT_EQ(WhyLinkFails("a&b&copy.jpg", LinkStart::Folder), "in a page, \"&copy\" stands for another character");
  EXPECT_EQ(WhyLinkFails("a&zcaron;.jpg", LinkStart::Folder), "in a page, \"&zcaron;\" stands for another character");
}

TEST(LinkHazards, AnAmpersandWithoutACharacterReferenceWorks) {
  for (const char* name : {"R&D.jpg", "Tom & Jerry.jpg", "a&", "&", "&;", "a&copy=b", "a&copyright.jpg", "a&copy1.jpg",
                           "&AMPS.jpg", "&Lt.jpg", "&zcaron.jpg"}) {
    for (const LinkStart start : kEverywhere) EXPECT_EQ(WhyLinkFails(name, start), "") << name;
  }
}

TEST(LinkHazards, ALeadingBlankFailsIfTheNameBeginsTheLink) {
  for (const char* name : {" a.htm", "\x1F.htm"}) {
    EXPECT_EQ(WhyLinkFails(name, LinkStart::Folder), "") << name;
    EXPECT_EQ(WhyLinkFails(name, LinkStart::Name), "a blank at its beginning is left out of a link") << name;
  }
}

TEST(LinkHazards, ALeadingProtocolFailsIfTheNameBeginsTheLink) {
  for (const char* name : {"Evening:1.htm", "a+b-c.d:", "x1:y"}) {
    EXPECT_EQ(WhyLinkFails(name, LinkStart::Folder), "") << name;
    EXPECT_EQ(WhyLinkFails(name, LinkStart::Name), "in a link, what precedes \":\" is a protocol") << name;
  }
  for (const char* name : {"10:30.htm", "At 10:30.htm", ":a", "a_b:c", "\xC3\xA4:b"}) {
    EXPECT_EQ(WhyLinkFails(name, LinkStart::Name), "") << name;
  }
}

TEST(LinkHazards, AnApostropheFailsOnlyAtTheStartOfARefresh) {
  EXPECT_EQ(WhyLinkFails("'a.htm", LinkStart::Folder), "");
  EXPECT_EQ(WhyLinkFails("'a.htm", LinkStart::Name), "");
  EXPECT_EQ(WhyLinkFails("'a.htm", LinkStart::NameInRefresh), "an apostrophe at its beginning ends a link");
  EXPECT_EQ(WhyLinkFails("a'.htm", LinkStart::NameInRefresh), "");
}

}  // namespace
}  // namespace vantorium::generation
