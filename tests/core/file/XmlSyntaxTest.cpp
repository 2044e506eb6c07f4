#include "core/file/XmlSyntax.h"

#include <string>

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace std::string_literals;

namespace {

std::string Repeated(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t count = 0; count < times; ++count) result += text;
  return result;
}

}  // namespace

TEST(XmlSyntax, WellFormedDocumentsAreAccepted) {
  for (const char* text : {"<a/>",
                           "<a></a>",
                           "<a ></a >",
                           "<a b=''/>",
                           "<a b=\"'\" c='\"' />",
                           "<a>text</a>",
                           "<a b = '1'\n c='2'/>",
                           "<?xml version=\"1.0\"?><a/>",
                           "<?xml version='1.0' encoding='UTF-8' standalone='yes' ?>\r\n<a/>\r\n",
                           "<!-- c --><a/><!----><?pi?>",
                           "<?pi data ?><a><?x?></a>",
                           "<a><![CDATA[<&]]]]></a>",
                           "<a><![CDATA[]]></a>",
                           "<a>&lt;&gt;&amp;&quot;&apos;&#65;&#x1F600;&#10;</a>",
                           "<a b='&#13;&#10;>'/>",
                           "<a>]]&gt;</a>",
                           "<!DOCTYPE a><a/>",
                           "<!DOCTYPE a SYSTEM 'x>y'><a/>",
                           "<!DOCTYPE a PUBLIC \"p\" \"s\" ><a/>",
                           "<\xC3\xA4 \xC3\xB6='\xC3\xBC'/>",
                           "<a:b c.d-e_1=''/>"}) {
    EXPECT_TRUE(IsWellFormedXml(text)) << text;
  }
}

TEST(XmlSyntax, MalformedDocumentsAreRefused) {
  for (const std::string& text : {""s,
                                  "   "s,
                                  "text"s,
                                  "{}"s,
                                  "<"s,
                                  "<a"s,
                                  "<a>"s,
                                  "<a/"s,
                                  "</a>"s,
                                  "<a></b>"s,
                                  "<a><b></a></b>"s,
                                  "<a></a"s,
                                  "<a/><b/>"s,
                                  "<a/>text"s,
                                  "text<a/>"s,
                                  "<a/><![CDATA[x]]>"s,
                                  "<a><b></a>"s,
                                  "< a/>"s,
                                  "<1/>"s,
                                  "<a><//a>"s,
                                  "<a b/>"s,
                                  "<a b=c/>"s,
                                  "<a b='c/>"s,
                                  "<a b='1'c='2'/>"s,
                                  "<a b='1' b='2'/>"s,
                                  "<a b='<'/>"s,
                                  "<a b='&'/>"s,
                                  "<a>&</a>"s,
                                  "<a>&x;</a>"s,
                                  "<a>&lt</a>"s,
                                  "<a>&lt&amp;</a>"s,
                                  "<a>&#0;</a>"s,
                                  "<a>&#xD800;</a>"s,
                                  "<a>&#x110000;</a>"s,
                                  "<a>&#;</a>"s,
                                  "<a>&#-1;</a>"s,
                                  "<a>&#99999999999;</a>"s,
                                  "<a>]]></a>"s,
                                  "<a><!-- -- --></a>"s,
                                  "<a><!-- --->"s,
                                  "<a><!-- </a>"s,
                                  "<a><![CDATA[</a>"s,
                                  "<a><?</a>"s,
                                  "<a><?pi</a>"s,
                                  " <?xml version='1.0'?><a/>"s,
                                  "<a><?xml version='1.0'?></a>"s,
                                  "<?xml?><a/>"s,
                                  "<?xml encoding='x'?><a/>"s,
                                  "<?xml version='2.0'?><a/>"s,
                                  "<?xml version='1.0' version='1.0'?><a/>"s,
                                  "<?xml version='1.0' standalone='maybe'?><a/>"s,
                                  "<a>\0</a>"s,
                                  "<a>\x01</a>"s,
                                  "<a>\xE4</a>"s,
                                  "<a>\xED\xA0\x80</a>"s,
                                  "<a/><!DOCTYPE a>"s,
                                  "<!DOCTYPE><a/>"s,
                                  "<!DOCTYPE a SYSTEM><a/>"s}) {
    EXPECT_FALSE(IsWellFormedXml(text)) << text;
  }
}

TEST(XmlSyntax, EntityDeclarationsAreRefused) {
  EXPECT_FALSE(IsWellFormedXml("<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>"));
  EXPECT_FALSE(IsWellFormedXml("<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/passwd\">]><a/>"));
  EXPECT_FALSE(IsWellFormedXml("<!DOCTYPE a [<!ENTITY b '&c;&c;'><!ENTITY c '&b;'>]><a>&b;</a>"));
  EXPECT_FALSE(IsWellFormedXml("<!DOCTYPE a SYSTEM 'x'[]><a/>"));
}

TEST(XmlSyntax, DocumentsBeyondALimitAreRefused) {
  const XmlLimits limits = {.depth = 3, .pieces = 10, .attributeBytes = 4};
  EXPECT_TRUE(IsWellFormedXml("<a><b><c><d/></c></b></a>", limits));
  EXPECT_FALSE(IsWellFormedXml("<a><b><c><d></d></c></b></a>", limits));
  EXPECT_TRUE(IsWellFormedXml("<a>" + Repeated("<b/>", 9) + "</a>", limits));
  EXPECT_FALSE(IsWellFormedXml("<a>" + Repeated("<b/>", 10) + "</a>", limits));
  EXPECT_TRUE(IsWellFormedXml("<a b='1234'/>", limits));
  EXPECT_FALSE(IsWellFormedXml("<a b='12345'/>", limits));
}

TEST(XmlSyntax, AMillionNestedElementsAreRefused) {
  EXPECT_FALSE(IsWellFormedXml(Repeated("<a>", 1'000'000) + Repeated("</a>", 1'000'000)));
  EXPECT_FALSE(IsWellFormedXml(Repeated("<a>", 1'000'000)));
}
