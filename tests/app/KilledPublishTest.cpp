#include "tests/app/ServerPlace.h"

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace vantorium {
namespace {

using Clock = std::chrono::steady_clock;
namespace fs = std::filesystem;

const char kPreferences[] =
    "[DIRECTORIES]\r\nCREATEFOLDER=\"C:\\gallery\"\r\n\r\n; mine\r\n[PUBLISH]\r\nDESCRIPTION1=\"home\"\r\n";

/// Runs of publish with all the files around them that must outlive anything.
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
  /// One run to its end, which makes the whole gallery on the server; returns how long it took.
  Clock::duration RunToTheEnd() const {
    const auto begin = Clock::now();
    EXPECT_TRUE(Succeeded(ChildProcess(Run()).Finish()));
    const auto length = Clock::now() - begin;
    EXPECT_TRUE(SameFiles(OnServer("web"), place.Path("out")));
    return length;
  }
  /// One run that is killed so long after its start; earlier when it proves to be over by then.
  void KillAfter(Clock::duration moment) const {
    for (;; moment /= 2) {
      ChildProcess program(Run());
      std::this_thread::sleep_for(moment);
      if (program.HasEnded()) continue;
      program.Send(SIGKILL);
      if (program.Finish().exitCode == -1) return;
    }
  }
  /// Whatever lay here before the runs is as it was and nothing is new, but for the log and the temporary folder, in
  /// which a file that has its name is one to its end.
  void ExpectAllIsWhole(const std::map<std::string, std::string>& before) const {
    auto now = FilesBelow(place.Path());
    for (const auto& [name, bytes] : before) EXPECT_TRUE(now[name] == bytes) << name << " holds\n" << now[name];
    for (const auto& [name, bytes] : now) {
      if (name.starts_with(kTemp)) {
        ExpectIsOfTheGallery(name.substr(kTemp.size()), bytes);
      } else {
        EXPECT_TRUE(before.contains(name) || name == "program/ftplog.txt") << name << " is new";
      }
    }
  }
  void ExpectIsOfTheGallery(const std::string& name, const std::string& bytes) const {
    if (fs::path(name).filename().string().starts_with(".vantorium-")) return;  // was about to get its name
    const fs::path inPlace = fs::path("out") / name;
    const fs::path image = fs::path("out/Images") / name;  // lies outside its folder until it is sent
    ASSERT_TRUE(fs::exists(place.Path(inPlace)) || fs::exists(place.Path(image))) << name << " is not of the gallery";
    EXPECT_TRUE(place.Read(fs::exists(place.Path(inPlace)) ? inPlace : image) == bytes) << name << " is half written";
  }

  static constexpr std::string_view kTemp = "temp/VANTORIUM_TEMP/";
  static constexpr const char* kTime = "2001-02-03 04:05:06";
};

TEST_F(KilledPublish, LeavesEveryFileWholeAndTheNextRunEndsWell) {
  constexpr int kRuns = 20;
  constexpr unsigned kSeed = 20;
  const auto before = FilesBelow(place.Path());
  const Clock::duration length = RunToTheEnd();
  std::mt19937 random(kSeed);
  for (int run = 0; run < kRuns; ++run) {
    // One moment in each twentieth of the run's length, so that they are spread over all of it.
    const double share = (run + std::uniform_real_distribution<>()(random)) / kRuns;
    SCOPED_TRACE(testing::Message() << "killed at " << share << " of a run");
    KillAfter(std::chrono::duration_cast<Clock::duration>(length * share));
    ExpectAllIsWhole(before);
    RunToTheEnd();
    ExpectAllIsWhole(before);
    EXPECT_EQ(ListingOf(place.Path("temp")).find(".vantorium-"), std::string::npos) << ListingOf(place.Path("temp"));
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace vantorium
