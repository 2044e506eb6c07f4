#include "core/generation/CreateGallery.h"
#include "image/PangoTextRaster.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/frmProgress.h"
#include "ui/ports/QtEventLoop.h"

#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

/// The main window of a run, as far as the run knows it, with the real window of its progress.
class RunWindow : public RunHost {
 public:
  using MakeProgress = std::function<std::unique_ptr<frmProgress>(QWidget* owner)>;

  explicit RunWindow(MakeProgress makeProgress) : makeProgress_(std::move(makeProgress)) { window.show(); }

  [[nodiscard]] CreateChoice AskWhatToCreate() override { return choice; }
  [[nodiscard]] std::unique_ptr<ProgressWindow> CreateProgressWindow() override {
    auto made = makeProgress_(&window);
    progress = made.get();
    return made;
  }
  void ShowStatus(const std::string& text) override { status = text; }
  void ShowBusyPointer(bool /*busy*/) override {}
  void EnableMainWindow(bool enabled) override { window.setEnabled(enabled); }
  void EnableTrayIcon(bool /*enabled*/) override {}

  QWidget window;
  QPointer<frmProgress> progress;
  CreateChoice choice;
  std::string status;

 private:
  MakeProgress makeProgress_;
};

/// Real runs over photographs in a folder that is drive T.
class RunInItsWindow : public testing::Test {
 protected:
  RunInItsWindow() {
    const std::string photograph = fakes::MakeJpeg({.width = 320, .height = 240});
    for (int number = 1; number <= kPhotographs; ++number) {
      const std::string name = std::to_string(number) + ".jpg";
      folder.Write("photos/" + name, photograph);
      ImageEntry entry;
      entry.ImageName = std::to_string(number);
      entry.SourcePath = "T:\\photos\\" + name;
      project.images.Insert(project.images.Count() + 1, entry);
    }
    project.settings.checkImageWrapperUse = 1;
    preferences.TempFolderLocation = "T:\\temp";
    host.choice.option = CreateChoice::Option::CreateGallery;
    host.choice.FilePath = "T:\\out\\index.htm";
  }

  RunEnd Create() {
    GenerationMode mode = GenerationMode::Create;
    return GalleryCreator(project, preferences, "T:\\program",
                          {host, boxes, loop, clock, shell, files, formats, cancel, screen, texts})
        .CreateGallery(mode, 0);
  }
  /// Looks at the run at each of the event loop's turns until `act` is true.
  void Watch(const std::function<bool(frmProgress&)>& act) {
    QObject::connect(&watch, &QTimer::timeout, [this, act] {
      if (host.progress && act(*host.progress)) watch.stop();
    });
    watch.start(0);
  }
  [[nodiscard]] bool IsWritten(const std::string& name) const {
    return std::filesystem::exists(folder.Path() / "out" / name);
  }

  static constexpr int kPhotographs = 40;

  fakes::TemporaryFolder folder;
  PathMap paths{{{'T', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
  Project project;
  Preferences preferences;
  fakes::RecordingMessageBox boxes;
  fakes::Journal journal;
  fakes::RecordingShell shell{journal};
  fakes::FixedClock clock;
  QtEventLoop loop;
  Screen screen;
  PangoTextRaster texts;
  CancelCheck cancel{boxes};
  UploadLog log{folder.Path() / "program", clock, boxes};
  RunWindow host{
      [this](QWidget* owner) { return std::make_unique<frmProgress>(log, cancel, shell, "T:\\program", owner); }};
  QTimer watch;
};

TEST_F(RunInItsWindow, GoesThroughToItsEndAndGivesTheMainWindowBack) {
  bool wasDisabled = false;
  Watch([&](frmProgress& window) {
    wasDisabled = !host.window.isEnabled() && window.isEnabled();
    return true;
  });
  EXPECT_EQ(Create(), RunEnd::Success);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_TRUE(IsWritten("index.htm"));
}

TEST_F(RunInItsWindow, IsCancelledThroughTheButtonInMidRun) {
  boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
  std::int32_t refusedAt = 0;
  std::int32_t confirmedAt = 0;
  Watch([&](frmProgress& window) {
    if (window.GetProgress() < kPhotographs + 5) return false;  // five images are made
    fakes::Click(window, "CancelButton");
    (boxes.boxes.size() == 1 ? refusedAt : confirmedAt) = window.GetProgress();
    return boxes.boxes.size() == 2;
  });
  EXPECT_EQ(Create(), RunEnd::Cancelled);
  ASSERT_EQ(boxes.boxes.size(), 3U);
  EXPECT_EQ(boxes.boxes[0].title, "Cancel Request");
  EXPECT_EQ(boxes.boxes[1].title, "Cancel Request");
  EXPECT_EQ(boxes.boxes[2].title, "Creation cancelled");
  EXPECT_GE(confirmedAt, refusedAt) << "the run went on behind the No";
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_FALSE(IsWritten("index.htm"));
}

TEST_F(RunInItsWindow, AFailureStaysUntilItIsClosed) {
  std::filesystem::remove(folder.Path() / "photos/3.jpg");
  Watch([&](frmProgress& window) {
    if (window.CancelButtonCaption() != "&Close") return false;
    EXPECT_FALSE(host.window.isEnabled());
    fakes::Click(window, "btnShowLog");
    fakes::Click(window, "CancelButton");
    return true;
  });
  EXPECT_EQ(Create(), RunEnd::Failure);
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_EQ(journal, (fakes::Journal{"beep warning", "open T:\\program/ftplog.txt", "beep information"}));
}

}  // namespace
}  // namespace vantorium
