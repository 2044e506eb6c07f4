#include "core/generation/RunOrder.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

TEST(RunOrder, TheIndexFileGivesFolderAndNameAndKeepsALeadingSeparator) {
  struct Case {
    const char* path;
    const char* folder;
    const char* name;
  };
  for (const auto& [path, folder, name] :
       {Case{"D:\\web\\start.htm", "D:\\web\\", "start.htm"}, Case{"\\web\\start.htm", "\\web\\", "start.htm"},
        Case{"\\start.htm", "\\", "start.htm"}, Case{"start.htm", "", "start.htm"}, Case{"D:\\web\\", "D:\\web\\", ""},
        Case{"", "", ""}}) {
    RunOrder order;
    SetIndexFile(order, path);
    EXPECT_EQ(order.OutputFolder, folder) << path;
    EXPECT_EQ(order.IndexFileName, name) << path;
  }
}

TEST(RunOrder, AFolderOnTheServerEndsInASlashUnlessItIsEmpty) {
  for (const auto& [typed, folder] :
       {std::pair{"web", "web/"}, {"web/", "web/"}, {"web\\", "web/"}, {"a\\b", "a/b/"}, {"", ""}}) {
    RunOrder order;
    SetRemoteFolder(order, typed);
    EXPECT_EQ(order.RemoteFolder, folder) << typed;
  }
}

TEST(RunOrder, TheIndexFileOnTheServerMayHaveFolders) {
  struct Case {
    const char* folder;
    const char* file;
    const char* remoteFolder;
    const char* remoteName;
  };
  for (const auto& [folder, file, remoteFolder, remoteName] :
       {Case{"web", "a.htm", "web/", "a.htm"}, Case{"web/", "sub/a.htm", "web/sub/", "a.htm"},
        Case{"", "web\\a.htm", "web/", "a.htm"}, Case{"", "a.htm", "", "a.htm"}, Case{"web", "", "web/", ""}}) {
    RunOrder order;
    SetRemoteIndexFile(order, folder, file);
    EXPECT_EQ(order.RemoteFolder, remoteFolder) << folder << " + " << file;
    EXPECT_EQ(order.RemoteIndexFileName, remoteName) << folder << " + " << file;
  }
}

}  // namespace
}  // namespace vantorium::generation
