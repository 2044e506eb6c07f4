#include "tests/fakes/CountingEventLoop.h"
#include "ui/model/files/FolderChecks.h"

#include <map>
#include <set>

namespace vantorium::ui {
namespace {

/// Folders in memory, listed by their paths. Counts the calls of In.
class FakeFolders : public Folders {
 public:
  explicit FakeFolders(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) Add(path);
  }

  void Add(const std::filesystem::path& path) {
    if (!path.has_relative_path()) return;
    Add(path.parent_path());
    children_[path.parent_path()].insert(path.filename().string());
  }
  void AddLink(const std::filesystem::path& path) {
    Add(path);
    links_.insert(path);
  }

  std::vector<SubFolder> In(const std::filesystem::path& folder) const override {
    ++looks;
    std::vector<SubFolder> folders;
    const auto found = children_.find(folder);
    if (found == children_.end()) return folders;
    for (const std::string& name : found->second) {
      if (!name.starts_with('.')) folders.push_back({name, IsLink(folder / name)});
    }
    return folders;
  }
  bool IsLink(const std::filesystem::path& folder) const override { return links_.contains(folder); }

  mutable int looks = 0;

 private:
  std::map<std::filesystem::path, std::set<std::string>> children_;
  std::set<std::filesystem::path> links_;
};

using Paths = std::vector<std::string>;

class Checking : public testing::Test {
 protected:
  Paths Chosen() {
    Paths paths;
    const auto chosen = checks.Expand(loop, [] { return false; });
    for (const auto& path : chosen.value()) paths.push_back(path.string());
    return paths;
  }

  FakeFolders folders{{"/p/2004/May", "/p/2005/June/Day 1", "/p/2005/July", "/q"}};
  FolderChecks checks{folders};
  fakes::CountingEventLoop loop;
};

TEST_F(Checking, NothingIsCheckedAtFirst) {
  EXPECT_FALSE(checks.AnyChecked());
  EXPECT_FALSE(checks.IsChecked("/p"));
  EXPECT_EQ(Chosen(), Paths{});
}

TEST_F(Checking, AFolderIsCheckedAlone) {
  checks.Check("/p/2005", true, false);
  EXPECT_TRUE(checks.AnyChecked());
  EXPECT_TRUE(checks.IsChecked("/p/2005"));
  EXPECT_FALSE(checks.IsChecked("/p/2005/June"));
  EXPECT_FALSE(checks.IsChecked("/p"));
  EXPECT_EQ(Chosen(), Paths{"/p/2005"});
  EXPECT_EQ(folders.looks, 0);
}

TEST_F(Checking, WithRecursionAllSubfoldersAreCheckedToo) {
  checks.Check("/p/2005", true, true);
  EXPECT_TRUE(checks.IsChecked("/p/2005/June/Day 1"));
  EXPECT_FALSE(checks.IsChecked("/p/2004"));
  EXPECT_EQ(folders.looks, 0);
  EXPECT_EQ(Chosen(), (Paths{"/p/2005", "/p/2005/July", "/p/2005/June", "/p/2005/June/Day 1"}));
}

TEST_F(Checking, AFolderIsListedBeforeItsSubfoldersWhichAreSortedByName) {
  checks.Check("/q", true, false);
  checks.Check("/p/2005/June", true, false);
  checks.Check("/p/2004", true, false);
  checks.Check("/p", true, false);
  checks.Check("/p/2005/july", true, false);
  EXPECT_EQ(Chosen(), (Paths{"/p", "/p/2004", "/p/2005/july", "/p/2005/June", "/q"}));
}

TEST_F(Checking, ASubfolderOfACheckedFolderCanBeUnchecked) {
  checks.Check("/p", true, true);
  checks.Check("/p/2005", false, false);
  EXPECT_FALSE(checks.IsChecked("/p/2005"));
  EXPECT_TRUE(checks.IsChecked("/p/2005/June"));
  EXPECT_EQ(Chosen(), (Paths{"/p", "/p/2004", "/p/2004/May", "/p/2005/July", "/p/2005/June", "/p/2005/June/Day 1"}));
}

TEST_F(Checking, AllSubfoldersOfACheckedFolderCanBeUnchecked) {
  checks.Check("/p", true, true);
  checks.Check("/p/2005", false, true);
  EXPECT_FALSE(checks.IsChecked("/p/2005/June"));
  checks.Check("/p/2005/July", true, false);
  EXPECT_EQ(Chosen(), (Paths{"/p", "/p/2004", "/p/2004/May", "/p/2005/July"}));
}

TEST_F(Checking, UncheckingWithRecursionUnchecksEverything) {
  checks.Check("/p/2005/June", true, false);
  checks.Check("/p/2004", true, true);
  checks.Check("/p", false, true);
  EXPECT_FALSE(checks.AnyChecked());
  EXPECT_EQ(Chosen(), Paths{});
}

TEST_F(Checking, TheRootCanBeChecked) {
  checks.Check("/", true, false);
  EXPECT_TRUE(checks.IsChecked("/"));
  EXPECT_EQ(Chosen(), Paths{"/"});
}

TEST_F(Checking, ALinkIsCheckedOnlyByItself) {
  folders.AddLink("/p/2005/all");
  folders.Add("/p/2005/all/inside");
  checks.Check("/p", true, true);
  EXPECT_FALSE(checks.IsChecked("/p/2005/all"));
  EXPECT_FALSE(checks.IsChecked("/p/2005/all/inside"));
  for (const std::string& path : Chosen()) EXPECT_EQ(path.find("all"), std::string::npos) << path;
  checks.Check("/p/2005/all", true, true);
  EXPECT_TRUE(checks.IsChecked("/p/2005/all/inside"));
  const Paths chosen = Chosen();
  EXPECT_EQ(std::count(chosen.begin(), chosen.end(), "/p/2005/all/inside"), 1);
}

TEST_F(Checking, ACycleOfLinksEnds) {
  folders.AddLink("/p/2005/back");
  folders.AddLink("/p/2005/back/2005");
  folders.AddLink("/p/2005/back/2005/back");
  checks.Check("/p/2005/back", true, true);
  EXPECT_EQ(Chosen(), Paths{"/p/2005/back"});
}

TEST_F(Checking, AHiddenFolderIsCheckedOnlyByItself) {
  folders.Add("/p/.trash/old");
  checks.Check("/p", true, true);
  EXPECT_FALSE(checks.IsChecked("/p/.trash"));
  checks.Check("/p/.trash", true, true);
  EXPECT_TRUE(checks.IsChecked("/p/.trash/old"));
  const Paths chosen = Chosen();
  EXPECT_EQ(std::count(chosen.begin(), chosen.end(), "/p/.trash/old"), 1);
}

TEST_F(Checking, ALongWalkGivesTheEventLoopTurnsAndCanBeStopped) {
  for (int i = 0; i < 1000; ++i) folders.Add("/q/" + std::to_string(i));
  checks.Check("/q", true, true);
  EXPECT_EQ(Chosen().size(), 1001U);
  EXPECT_GT(loop.turns, 10);
  const int looks = folders.looks;
  EXPECT_FALSE(checks.Expand(loop, [] { return true; }).has_value());
  EXPECT_LT(folders.looks - looks, 100);
}

TEST_F(Checking, ADeepFolderIsChecked) {
  std::string path = "/q";
  for (int i = 0; i < 400; ++i) path += "/d";
  folders.Add(path);
  checks.Check("/q", true, true);
  EXPECT_TRUE(checks.IsChecked(path));
  EXPECT_EQ(Chosen().size(), 401U);
}

}  // namespace
}  // namespace vantorium::ui
