// Measures how long a run continues after "Cancel" and "Yes": prints the longest of many runs in their window, each
// cancelled at a random moment. The clock starts when the button is due to be pressed, so an unresponsive window counts
// too. Usage: bench_cancel PHOTOGRAPHS, where PHOTOGRAPHS is a folder of large photographs.
#include "publish/AsioFTPSocket.h"
#include "tests/fakes/RecordingImageListDisplay.h"
#include "tests/fakes/ScriptedFtpServer.h"
#include "tests/ui/RunHarness.h"
#include "ui/files/frmAddFoldersProcess.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>

#include <fmt/format.h>

namespace vantorium {
namespace {

namespace fs = std::filesystem;

using Milliseconds = std::chrono::duration<double, std::milli>;
using Script = fakes::ScriptedFtpServer::Script;
using Session = fakes::ScriptedFtpServer::Session;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kRuns = 20;
constexpr double kLimit = 100;

/// Collects waits and prints the longest.
class Longest {
 public:
  void Add(Milliseconds wait) {
    longest_ = std::max(longest_, wait);
    ++count_;
  }
  void Print(const std::string& what) const {
    fmt::print("{:<40} {:>3} cancelled, the longest took {:6.1f} ms, {:.2f} of the limit\n", what, count_,
               longest_.count(), longest_.count() / kLimit);
    std::fflush(stdout);
  }

 private:
  Milliseconds longest_{0};
  int count_ = 0;
};

class Bench {
 public:
  explicit Bench(const fs::path& photographs) : photographs_(fs::absolute(photographs)) {}

  void WhilePicturesAreMade(unsigned jobs) {
    Measure(fmt::format("pictures, {} at a time", jobs), milliseconds(3000), [&](fakes::RunHarness& harness) {
      AddPhotographs(harness);
      return harness.Create(nullptr, jobs);
    });
  }
  void AgainstServer(const char* what, const Script& script) {
    Measure(what, milliseconds(1000), [&](fakes::RunHarness& harness) {
      fakes::ScriptedFtpServer server(script);
      harness.folder.Write("site/large.bin", std::string(50'000'000, 'x'));
      return Upload(harness, server.Port());
    });
  }
  void WhileManyFilesAreSent() {
    Measure("4,000 small files of 200 folders", milliseconds(1000), [&](fakes::RunHarness& harness) {
      fakes::ScriptedFtpServer server;
      for (int i = 0; i < 4000; ++i) harness.folder.Write(fmt::format("site/{}/{}.txt", i / 20, i), "x");
      return Upload(harness, server.Port());
    });
  }
  void WhileFoldersAreAdded() {
    Longest longest;
    fakes::RunHarness harness;
    for (int file = 0; file < 40'000; ++file) harness.folder.Write(fmt::format("many/{}.jpg", file), "x");
    for (int i = 0; i < kRuns; ++i) {
      harness.project.images.Clear();
      fakes::RecordingImageListDisplay display;
      core::ImageListOperations images(harness.project, harness.files, harness.boxes, display);
      ui::frmAddFoldersProcess progress;
      const auto due = PressLater(progress, "OKButton", milliseconds(120));
      ui::FolderWalk({harness.project, images, harness.paths, harness.boxes, harness.loop}).Run({"T:\\many"}, progress);
      if (progress.Cancelled) longest.Add(steady_clock::now() - due);
    }
    longest.Print("adding a folder of 40,000 photographs");
  }

 private:
  using Run = std::function<generation::RunEnd(fakes::RunHarness&)>;

  void AddPhotographs(fakes::RunHarness& harness) const {
    fs::create_directory_symlink(photographs_, harness.folder.Path() / "photos");
    for (const auto& file : fs::directory_iterator(photographs_)) {
      harness.AddImage(file.path().stem().string(), "T:\\photos\\" + file.path().filename().string());
    }
  }
  static generation::RunEnd Upload(fakes::RunHarness& harness, std::uint16_t port) {
    generation::RunOrder& order = harness.host.order;
    order.Mode = generation::GenerationMode::Upload;
    order.ServerAddress = "127.0.0.1";
    order.Port = port;
    order.UserName = "me";
    order.RemoteFolder = "web/";
    order.OutputFolder = "T:\\site\\";
    publish::mFTP ftp(std::make_unique<publish::AsioFTPSocket>(harness.loop),
                      std::make_unique<publish::AsioFTPSocket>(harness.loop), harness.paths, harness.boxes,
                      harness.loop, harness.cancel);
    harness.cancel.OnCancel([&ftp] { ftp.FTPCancelData(); });
    return harness.Create(&ftp);
  }
  /// Presses the button at a random time between 50 ms and `latest` from now. Returns that time.
  steady_clock::time_point PressLater(QWidget& window, const char* button, milliseconds latest) {
    const milliseconds delay{std::uniform_int_distribution<int>(50, static_cast<int>(latest.count()))(random_)};
    QTimer::singleShot(delay, Qt::PreciseTimer, &window,
                       [&window, button] { window.findChild<QPushButton*>(button)->click(); });
    return steady_clock::now() + delay;
  }
  /// A cancelled folder upload ends like a failed one: its window stays open until it is closed.
  static void CloseWhenItEnded(ui::frmProgress& progress, steady_clock::time_point& ended) {
    auto* look = new QTimer(&progress);
    QObject::connect(look, &QTimer::timeout, &progress, [&progress, &ended] {
      if (!progress.OffersClose() || ended != steady_clock::time_point()) return;
      ended = steady_clock::now();
      progress.findChild<QPushButton*>("CancelButton")->click();
    });
    look->start(1);
  }
  void Measure(const std::string& what, milliseconds latest, const Run& run) {
    Longest longest;
    for (int i = 0; i < kRuns; ++i) {
      fakes::RunHarness harness;
      steady_clock::time_point due;
      steady_clock::time_point ended;
      harness.host.onProgress = [&](ui::frmProgress& progress) {
        due = PressLater(progress, "CancelButton", latest);
        CloseWhenItEnded(progress, ended);
      };
      if (run(harness) == generation::RunEnd::Cancelled) ended = steady_clock::now();
      if (ended > due) longest.Add(ended - due);
    }
    longest.Print(what);
  }

  fs::path photographs_;
  std::mt19937 random_{1};
};

Script NeverGreets() {
  Script script;
  script.greet = [](Session& session) { session.StaySilent(); };
  return script;
}

Script StopsToAnswer() {
  Script script;
  script.on["TYPE"] = [](Session& session, const std::string&) { session.StaySilent(); };
  return script;
}

Script StopsToRead() {
  Script script;
  script.on["STOR"] = [](Session& session, const std::string& name) {
    session.Say("150 go on\r\n");
    if (session.OpenData()) std::ignore = session.Receive(name, 100'000);
    session.StaySilent();
  };
  return script;
}

int Main(int argc, char** argv) {
  if (argc != 2) {
    fmt::print(stderr, "Use: bench_cancel PHOTOGRAPHS\n");
    return 2;
  }
  QApplication application(argc, argv);
  Bench bench(argv[1]);
  bench.WhilePicturesAreMade(1);
  bench.WhilePicturesAreMade(2);
  bench.AgainstServer("a server that never greets", NeverGreets());
  bench.AgainstServer("a server that stops to answer", StopsToAnswer());
  bench.AgainstServer("a server that stops to read", StopsToRead());
  bench.WhileManyFilesAreSent();
  bench.WhileFoldersAreAdded();
  return 0;
}

}  // namespace
}  // namespace vantorium

int main(int argc, char** argv) {
  return vantorium::Main(argc, argv);
}
