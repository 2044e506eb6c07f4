#include "env/PathText.h"

namespace vantorium::env {
namespace {

struct Parts {
  const char* path;
  const char* folder;
  const char* name;
};

class PathParts : public testing::TestWithParam<Parts> {};

TEST_P(PathParts, FolderAndNameAreSplitAfterTheLastSeparator) {
  const auto& [path, folder, name] = GetParam();
  EXPECT_EQ(GetFilePath(path), folder) << path;
  EXPECT_EQ(GetFileName(path), name) << path;
}

INSTANTIATE_TEST_SUITE_P(PathText, PathParts,
                         testing::Values(Parts{"a/b/c.htm", "a\\b\\", "c.htm"}, Parts{"name", "", "name"},
                                         Parts{"", "", ""},
                                         Parts{"C:\\gallery\\index.htm", "C:\\gallery\\", "index.htm"},
                                         Parts{"C:\\gallery\\", "C:\\gallery\\", ""}, Parts{"C:name", "", "C:name"},
                                         Parts{"\\name", "", "name"}, Parts{"/name", "", "name"},
                                         Parts{"\\\\server\\share\\a.jpg", "\\server\\share\\", "a.jpg"},
                                         Parts{"\\\\name", "\\", "name"}, Parts{"\\", "", ""},
                                         Parts{"a\\b/c", "a\\b\\", "c"}));

TEST(PathText, TheExtensionBeginsAtTheLastDotEvenInAFolder) {
  const std::pair<const char*, const char*> cases[] = {
      {"a.jpg", ".jpg"}, {"a.b.JPG", ".JPG"}, {"C:\\a.b\\c", ".b\\c"},    {"a", ""},
      {"", ""},          {"a.", "."},         {".htaccess", ".htaccess"}, {"a./b", "./b"}};
  for (const auto& [path, extension] : cases) EXPECT_EQ(GetFileExtension(path), extension) << path;
}

TEST(PathText, SlashesAndBackslashesAreConverted) {
  EXPECT_EQ(WithSlashes("a\\b/c\\\\"), "a/b/c//");
  EXPECT_EQ(WithBackslashes("a\\b/c//"), "a\\b\\c\\\\");
  EXPECT_EQ(WithSlashes(""), "");
}

TEST(PathText, AnExtensionIsAppendedUnlessThePathHasItInAnyCase) {
  const std::pair<const char*, const char*> cases[] = {
      {"a", "a.gpj"},     {"a.gpj", "a.gpj"},       {"a.GPJ", "a.GPJ"},
      {"gpj", "gpj.gpj"}, {".gpj", ".gpj"},         {"24.12", "24.12.gpj"},
      {"a.", "a..gpj"},   {"a.gpjx", "a.gpjx.gpj"}, {"C:\\b.gpj\\a", "C:\\b.gpj\\a.gpj"},
      {"", ".gpj"}};
  for (const auto& [path, expected] : cases) EXPECT_EQ(WithExtension(path, ".gpj"), expected) << path;
}

TEST(PathText, ABackslashIsAppendedUnlessThereIsOne) {
  EXPECT_EQ(WithTrailingBackslash("C:\\a"), "C:\\a\\");
  EXPECT_EQ(WithTrailingBackslash("C:\\a\\"), "C:\\a\\");
  EXPECT_EQ(WithTrailingBackslash("C:\\a/"), "C:\\a/\\");
  EXPECT_EQ(WithTrailingBackslash(""), "\\");
}

}  // namespace
}  // namespace vantorium::env
