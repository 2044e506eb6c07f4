#pragma once

#include "core/generation/CreateGallery.h"
#include "image/PangoTextRaster.h"
#include "tests/fakes/FixedClock.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/ports/QtEventLoop.h"

#include <QPointer>
#include <functional>

namespace vantorium::fakes {

/// A RunHost with a plain main window and real progress windows.
class RunWindow : public generation::RunHost {
 public:
  using MakeProgress = std::function<std::unique_ptr<ui::frmProgress>(QWidget* owner)>;

  explicit RunWindow(MakeProgress makeProgress) : makeProgress_(std::move(makeProgress)) { window.show(); }

  [[nodiscard]] std::optional<generation::RunOrder> AskWhatToCreate() override { return order; }
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override {
    auto made = makeProgress_(&window);
    progress = made.get();
    if (onProgress) onProgress(*made);
    return made;
  }
  void SetStatusText(const std::string& text) override { status = text; }
  void EnableMainWindow(bool enabled) override { window.setEnabled(enabled); }

  std::function<void(ui::frmProgress&)> onProgress;  ///< called with each progress window
  QWidget window;
  QPointer<ui::frmProgress> progress;
  generation::RunOrder order;
  std::string status;

 private:
  MakeProgress makeProgress_;
};

/// Runs with a real progress window. A temporary folder is drive T:; the gallery goes to T:\out.
class RunHarness {
 public:
  RunHarness() {
    project.settings.checkImageWrapperUse = 1;
    preferences.TempFolderLocation = "T:\\temp";
    generation::SetIndexFile(host.order, "T:\\out\\index.htm");
  }

  void AddImage(const std::string& name, const std::string& path) {
    core::ImageEntry entry;
    entry.ImageName = name;
    entry.SourcePath = path;
    project.images.Insert(project.images.Count() + 1, entry);
  }
  generation::RunEnd Create(publish::mFTP* ftp = nullptr, unsigned jobs = 1) {
    generation::GenerationMode mode = generation::GenerationMode::Create;
    return generation::GalleryCreator(
               project, preferences, "T:\\program",
               {{paths, formats, files, boxes, loop, shell, clock, screen, texts, jobs}, host, cancel, ftp})
        .CreateGallery(mode, 0);
  }

  TemporaryFolder folder;
  env::PathMap paths{{{'T', folder.Path().string()}}};
  env::RegionalFormats formats{"en_US"};
  env::mFileFunctions files{paths, formats};
  core::Project project;
  env::Preferences preferences;
  RecordingMessageBox boxes;
  Journal journal;
  JournalingShell shell{journal};
  FixedClock clock;
  ui::QtEventLoop loop;
  env::Screen screen;
  image::PangoTextRaster texts;
  generation::CancelCheck cancel{boxes};
  publish::UploadLog log{folder.Path() / "program", clock, boxes};
  RunWindow host{
      [this](QWidget* owner) { return std::make_unique<ui::frmProgress>(log, cancel, shell, "T:\\program", owner); }};
};

}  // namespace vantorium::fakes
