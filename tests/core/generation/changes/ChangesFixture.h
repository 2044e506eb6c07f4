#pragma once

#include "core/generation/SourceStamp.h"
#include "tests/core/generation/RunFixture.h"
#include "tests/fakes/FilesBelow.h"

#include <map>
#include <vector>

namespace vantorium::generation {

/// Runs with OnlyChanges. The records are in T:\cache. At first there is none.
class ChangesFixture : public RunFixture {
 protected:
  ChangesFixture() { environment.cacheFolder = folder.Path() / "cache"; }

  [[nodiscard]] static RunOrder OnlyChanges(const std::string& to = "T:\\out\\") {
    RunOrder order = OrderFor(GenerationMode::Create, to);
    order.OnlyChanges = true;
    return order;
  }
  [[nodiscard]] static RunOrder RemovingUnused() {
    RunOrder order = OnlyChanges();
    order.RemoveUnused = true;
    return order;
  }

  /// The stamp of each file in the gallery.
  [[nodiscard]] std::map<std::string, SourceStamp> Stamps(const std::string& gallery = "out") const {
    std::map<std::string, SourceStamp> stamps;
    for (const std::string& name : FilesIn(gallery)) stamps[name] = *StampOf(folder.Path() / gallery / name);
    return stamps;
  }
  /// Runs, and returns the files that were written.
  std::vector<std::string> Written(const RunOrder& order) {
    const auto before = Stamps();
    EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();
    std::vector<std::string> written;
    for (const auto& [name, stamp] : Stamps()) {
      const auto old = before.find(name);
      if (old == before.end() || old->second != stamp) written.push_back(name);
    }
    return written;
  }
  /// Expects that the gallery equals one that a full run makes in a new folder.
  void ExpectLikeAFullRun(const std::string& why = {}) {
    static int count = 0;
    const std::string name = "full" + std::to_string(++count);
    EXPECT_EQ(Run(OrderFor(GenerationMode::Create, "T:\\" + name + "\\")), RunEnd::Success) << LastBox();
    const auto here = fakes::FilesBelow(folder.Path() / "out");
    for (const auto& [file, bytes] : fakes::FilesBelow(folder.Path() / name)) {
      const auto found = here.find(file);
      ASSERT_NE(found, here.end()) << file << " is missing. " << why;
      EXPECT_TRUE(found->second == bytes) << file << " differs. " << why;
    }
    std::filesystem::remove_all(folder.Path() / name);
  }
  [[nodiscard]] std::vector<std::filesystem::path> Records() const {
    std::vector<std::filesystem::path> records;
    if (!std::filesystem::exists(environment.cacheFolder)) return records;
    for (const auto& entry : std::filesystem::directory_iterator(environment.cacheFolder)) {
      records.push_back(entry.path());
    }
    return records;
  }
};

}  // namespace vantorium::generation
