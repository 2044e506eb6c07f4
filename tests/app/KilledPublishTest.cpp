#include "tests/app/ServerPlace.h"

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace vantorium::batch {
namespace {

using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

const char kPreferences[] =
    "[DIRECTORIES]\r\nCREATEFOLDER=\"C:\\gallery\"\r\n\r\n; mine\r\n[PUBLISH]\r\nDESCRIPTION1=\"home\"\r\n";

/// Runs publish among files that must survive a kill.
class KilledPublish : public ServerPlace {
 protected:
  void SetUp() override {
    ServerPlace::SetUp();
    if (IsSkipped()) return;
    place.Write("program/vantorium.ini", kPreferences);
    fs::create_directory(place.Path("project"));
    place.Project("project/a.gpj", {"photographs/a.jpg", "photographs/b.jpg", "photographs/c.jpg"});
    place.Replace("project/a.gpj", "HEIGHT=\"300\"", "HEIGHT=\"900\"");
    ASSERT_TRUE(Succeeded(place.Run({"create", "project/a.gpj", "out/index.htm", "--creation-time", kTime})));
  }

  [[nodiscard]] StartOptions Run() const {
    return Options("publish", "project/a.gpj", "web/index.htm", {"--creation-time", kTime});
  }
  /// Runs to the end, which puts the complete gallery on the server. Returns how long that took.
  Clock::duration RunToTheEnd() const {
    const auto begin = Clock::now();
    EXPECT_TRUE(Succeeded(ChildProcess(Run()).Finish()));
    const auto length = Clock::now() - begin;
    EXPECT_TRUE(SameFiles(OnServer("web"), place.Path("out")));
    return length;
  }
  /// Kills a run `moment` after its start. If the run ends before that, tries again with half the time.
  void KillAfter(Clock::duration moment) const {
    for (;; moment /= 2) {
      ChildProcess program(Run());
      std::this_thread::sleep_for(moment);
      if (program.HasEnded()) continue;
      program.Send(SIGKILL);
      if (program.Finish().exitCode == -1) return;
    }
  }
  /// Expects that all files from before the runs are unchanged and nothing is new except the log and the temporary
  /// folder, where every file with its final name is complete.
  void ExpectCompleteFiles(const std::map<std::string, std::string>& before) const {
    auto now = FilesBelow(place.Path());
    for (const auto& [name, bytes] : before) EXPECT_TRUE(now[name] == bytes) << name << " contains\n" << now[name];
    for (const auto& [name, bytes] : now) {
      if (name.starts_with(kTemp)) {
        ExpectFileOfGallery(name.substr(kTemp.size()), bytes);
      } else {
        EXPECT_TRUE(before.contains(name) || name == "program/ftplog.txt") << name << " is new";
      }
    }
  }
  void ExpectFileOfGallery(const std::string& name, const std::string& bytes) const {
    if (fs::path(name).filename().string().starts_with(".vantorium-")) return;  // not yet renamed
    const fs::path inPlace = fs::path("out") / name;
    const fs::path image = fs::path("out/Images") / name;  // in the temporary folder until it is sent
    ASSERT_TRUE(fs::exists(place.Path(inPlace)) || fs::exists(place.Path(image)))
        << name << " is not a file of the gallery";
    EXPECT_TRUE(place.Read(fs::exists(place.Path(inPlace)) ? inPlace : image) == bytes) << name << " is incomplete";
  }

  static constexpr std::string_view kTemp = "temp/VANTORIUM_TEMP/";
  static constexpr const char* kTime = "2001-02-03 04:05:06";
};

TEST_F(KilledPublish, LeavesEveryFileCompleteAndTheNextRunSucceeds) {
  constexpr int kRuns = 20;
  constexpr unsigned kSeed = 20;
  const auto before = FilesBelow(place.Path());
  const Clock::duration length = RunToTheEnd();
  std::mt19937 random(kSeed);
  for (int run = 0; run < kRuns; ++run) {
    // One random moment in each twentieth of the run's length, so that the moments cover all of it.
    const double share = (run + std::uniform_real_distribution<>()(random)) / kRuns;
    SCOPED_TRACE(testing::Message() << "killed at " << share << " of a run");
    KillAfter(std::chrono::duration_cast<Clock::duration>(length * share));
    ExpectCompleteFiles(before);
    RunToTheEnd();
    ExpectCompleteFiles(before);
    EXPECT_EQ(ListingOf(place.Path("temp")).find(".vantorium-"), std::string::npos) << ListingOf(place.Path("temp"));
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace vantorium::batch
