#include "core/generation/PageText.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

TEST(PageText, EveryLineEndsInCrLf) {
  PageText page;
  page.Line("a");
  page.Line();
  page.Format("{}{}", "b", 1);
  EXPECT_EQ(page.Take(), "a\r\n\r\nb1\r\n");
}

TEST(PageText, UserTextsAreNotFormatStrings) {
  PageText page;
  page.Line("{0} {");
  page.Format("{}", "{}");
  page.UserCode("HEAD CODE", "{x}");
  EXPECT_EQ(page.Take(),
            "{0} {\r\n{}\r\n"
            "<!-- BEGIN USER DEFINED HEAD CODE -->\r\n{x}\r\n<!-- END USER DEFINED HEAD CODE -->\r\n");
}

TEST(PageText, UserCodeIsWrittenUnindentedBetweenIndentedComments) {
  PageText page;
  page.UserCode("IMAGE FOOTER", "", "  ");
  EXPECT_EQ(page.Take(),
            "  <!-- BEGIN USER DEFINED IMAGE FOOTER -->\r\n\r\n  <!-- END USER DEFINED IMAGE FOOTER -->\r\n");
}

}  // namespace
}  // namespace vantorium::generation
