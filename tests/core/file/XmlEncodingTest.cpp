#include "core/file/XmlEncoding.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace std::string_literals;

TEST(XmlEncoding, TheByteOrderMarkOrElseTheDeclarationNamesTheEncoding) {
  const std::pair<std::string, std::string> cases[] = {
      {"<a>\xC3\xA4</a>", "<a>\xC3\xA4</a>"},
      {"\xEF\xBB\xBF<a/>", "<a/>"},
      {"\xFF\xFE<\0a\0/\0>\0"s, "<a/>"},
      {"\xFE\xFF\0<\0\xE4\0/\0>"s, "<\xC3\xA4/>"},
      {"\xFF\xFE\x3D\xD8\0\xDE"s, "\xF0\x9F\x98\x80"},
      {"<?xml encoding='ISO-8859-1'?><a>\xE4</a>", "<?xml encoding='ISO-8859-1'?><a>\xC3\xA4</a>"},
      {"<?xml encoding=\"windows-1252\"?>\x80", "<?xml encoding=\"windows-1252\"?>\xE2\x82\xAC"},
      {"<?xml encoding='utf-8'?>\xC3\xA4", "<?xml encoding='utf-8'?>\xC3\xA4"},
      {"", ""},
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(DecodeXml(bytes), text) << bytes;
}

TEST(XmlEncoding, BytesThatAreInvalidInTheirEncodingAreRefused) {
  for (const std::string& bytes : {"<?xml encoding='no-such-code'?><a/>"s, "\xFF\xFE<\0a"s, "\xFF\xFE\0\xD8"s,
                                   "\xFE\xFF\xDC\0\0<"s, "<?xml encoding='US-ASCII'?>\xE4"s}) {
    EXPECT_EQ(DecodeXml(bytes), std::nullopt) << bytes;
  }
}
