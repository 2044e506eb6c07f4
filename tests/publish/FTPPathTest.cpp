#include "publish/FTPPath.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

struct Case {
  const char* path;
  const char* folder;
  const char* name;
};

constexpr Case kCases[] = {
    {"a/b/c.htm", "a/b/", "c.htm"}, {"a\\b\\c.htm", "a/b/", "c.htm"},
    {"name", "", "name"},           {"", "", ""},
    {"/name", "", "name"},          {"a/b/", "a/b/", ""},
    {"//a/b", "/a/", "b"},
};

TEST(FTPPath, FolderAndNameAreJoinedWithForwardSlashes) {
  for (const auto& [path, folder, name] : kCases) {
    EXPECT_EQ(FTPGetFilePath(path), folder) << path;
    EXPECT_EQ(FTPGetFileName(path), name) << path;
  }
}

TEST(FTPPath, APathRelativeToTheSessionHasNoLeadingSlash) {
  for (const auto& [path, relative] : std::vector<std::pair<const char*, const char*>>{
           {"a/b.htm", "a/b.htm"}, {"/a/b/", "a/b/"}, {"//a//b", "a//b"}, {"\\a\\b", "a/b"}, {"/", ""}, {"", ""}}) {
    EXPECT_EQ(RelativeToSession(path), relative) << path;
  }
}

}  // namespace
}  // namespace vantorium::publish
