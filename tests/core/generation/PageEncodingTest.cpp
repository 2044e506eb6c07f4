#include "core/generation/PageEncoding.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

TEST(PageEncoding, AnAsciiPageIsUnchanged) {
  for (const std::string page : {"", "<HTML>\r\n", "\x7F\t", "&uuml;"}) EXPECT_EQ(EncodePage(page), page);
}

TEST(PageEncoding, OtherPagesBeginWithAByteOrderMark) {
  for (const std::string page : {"\xC3\xBC", "<HTML>Z\xC3\xBCrich</HTML>\r\n", "\xF0\x9F\x98\x80"}) {
    EXPECT_EQ(EncodePage(page), "\xEF\xBB\xBF" + page);
  }
}

}  // namespace
}  // namespace vantorium::generation
