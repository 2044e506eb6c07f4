#include "core/ImageFormats.h"
#include "ui/model/files/FileFilters.h"

namespace vantorium::ui {
namespace {

using Patterns = std::vector<std::string>;

TEST(FileFilters, TheFilterOfImagesHasThreeEntries) {
  const std::vector<FileFilter> filters = ParseFileFilters(core::ImageFileFilter());
  ASSERT_EQ(filters.size(), 3U);
  EXPECT_EQ(filters[0].description, "All supported Formats");
  EXPECT_EQ(filters[0].patterns, (Patterns{"*.jpg", "*.jpeg", "*.jfif"}));
  EXPECT_EQ(filters[1].description, "JPEG Images (*.jpg, *.jpeg)");
  EXPECT_EQ(filters[1].patterns, (Patterns{"*.jpg", "*.jpeg"}));
  EXPECT_EQ(filters[2].description, "JFIF Images (*.jfif)");
  EXPECT_EQ(filters[2].patterns, Patterns{"*.jfif"});
}

struct Pattern {
  std::string filter;
  Patterns patterns;
};

TEST(FileFilters, PatternsAreConvertedToThoseOfQt) {
  const std::vector<Pattern> cases = {
      {"All Files (*.*)|*.*", {"*"}},
      {"Executables (*.exe)|*.exe", {"*"}},
      {"Executables|*.EXE;*.com", {"*", "*.com"}},
      {"Vantorium 3.0 Project Files (*.gpj)|*.gpj", {"*.gpj"}},
      {"HTML| *.htm ;;*.html;", {"*.htm", "*.html"}},
      {"No pattern at all", {"*"}},
      {"An empty pattern|", {"*"}},
  };
  for (const Pattern& row : cases) {
    const std::vector<FileFilter> filters = ParseFileFilters(row.filter);
    ASSERT_EQ(filters.size(), 1U) << row.filter;
    EXPECT_EQ(filters[0].patterns, row.patterns) << row.filter;
  }
}

TEST(FileFilters, AnEmptyTextHasNoFilters) {
  EXPECT_TRUE(ParseFileFilters("").empty());
}

}  // namespace
}  // namespace vantorium::ui
