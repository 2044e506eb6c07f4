#include "core/file/XmlNode.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;

namespace {

std::vector<std::string> IdsOf(const XmlFile& file, const char* name) {
  std::vector<std::string> ids;
  const pugi::xml_node top = file.Root();
  for (auto node = NextElement(top, top, name); node; node = NextElement(node, top, name)) {
    ids.emplace_back(AttributeOf(node, "id").value_or("none"));
  }
  return ids;
}

}  // namespace

TEST(XmlNode, AnAbsentAttributeIsNotAnEmptyOne) {
  XmlFile file;
  ASSERT_TRUE(file.Parse("<a b='' c='x'/>"));
  EXPECT_EQ(AttributeOf(file.Root(), "b"), "");
  EXPECT_EQ(AttributeOf(file.Root(), "c"), "x");
  EXPECT_EQ(AttributeOf(file.Root(), "B"), std::nullopt);
  EXPECT_EQ(AttributeOf(pugi::xml_node(), "b"), std::nullopt);
}

TEST(XmlNode, LineBreaksInAttributesSurviveOnlyAsReferences) {
  XmlFile file;
  ASSERT_TRUE(file.Parse("<a b='1&#13;&#10;2' c='1\r\n2\n3\t4'/>"));
  EXPECT_EQ(AttributeOf(file.Root(), "b"), "1\r\n2");
  EXPECT_EQ(AttributeOf(file.Root(), "c"), "1 2 3 4");
}

TEST(XmlNode, TheTextOfAnElementIsAllTextInsideItInOrder) {
  XmlFile file;
  ASSERT_TRUE(file.Parse("<a> 1<![CDATA[2\r\n]]><!-- no --><b>3<c>4</c></b><?no no?><d/> \n</a>"));
  EXPECT_EQ(TextOf(file.Root()), " 12\n34 \n");
  EXPECT_EQ(TextOf(file.Root().child("d")), "");
  EXPECT_EQ(TextOf(pugi::xml_node()), "");
}

TEST(XmlNode, DescendantsAreVisitedInDocumentOrderAndOnlyBelowTheElement) {
  XmlFile file;
  ASSERT_TRUE(
      file.Parse("<x id='0'><x id='1'><x id='2'/><y><x id='3'/></y></x><X id='no'/>text<y/><x id='4'>x</x></x>"));
  EXPECT_EQ(IdsOf(file, "x"), (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_EQ(IdsOf(file, "z"), std::vector<std::string>{});
  const pugi::xml_node first = file.Root().first_child();
  const pugi::xml_node last = NextElement(NextElement(first, first, "x"), first, "x");
  EXPECT_EQ(AttributeOf(last, "id"), "3");
  EXPECT_FALSE(NextElement(last, first, "x"));
}

TEST(XmlNode, AMalformedDocumentHasNoRoot) {
  for (const char* bytes : {"", "no XML", "<a><b></a>", "\xFF\xFE<"}) {
    XmlFile file;
    EXPECT_FALSE(file.Parse(bytes)) << bytes;
    EXPECT_FALSE(file.Root()) << bytes;
  }
}
