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

/// Stands in for a run's main window and creates real progress windows.
class RunWindow : public RunHost {
 public:
  using MakeProgress = std::function<std::unique_ptr<frmProgress>(QWidget* owner)>;

  explicit RunWindow(MakeProgress makeProgress) : makeProgress_(std::move(makeProgress)) { window.show(); }

  [[nodiscard]] std::optional<RunOrder> AskWhatToCreate() override { return order; }
  [[nodiscard]] std::unique_ptr<ProgressWindow> CreateProgressWindow() override {
    auto made = makeProgress_(&window);
    progress = made.get();
    if (onProgress) onProgress(*made);
    return made;
  }
  void SetStatusText(const std::string& text) override { status = text; }
  void EnableMainWindow(bool enabled) override { window.setEnabled(enabled); }

  std::function<void(frmProgress&)> onProgress;  ///< called with each progress window
  QWidget window;
  QPointer<frmProgress> progress;
  RunOrder order;
  std::string status;

 private:
  MakeProgress makeProgress_;
};

/// Everything that real runs with a real progress window need. The folder is drive T:; the gallery goes to T:\out.
class RunDesk {
 public:
  RunDesk() {
    project.settings.checkImageWrapperUse = 1;
    preferences.TempFolderLocation = "T:\\temp";
    SetIndexFile(host.order, "T:\\out\\index.htm");
  }

  void AddImage(const std::string& name, const std::string& path) {
    ImageEntry entry;
    entry.ImageName = name;
    entry.SourcePath = path;
    project.images.Insert(project.images.Count() + 1, entry);
  }
  RunEnd Create(mFTP* ftp = nullptr, unsigned jobs = 1) {
    GenerationMode mode = GenerationMode::Create;
    return GalleryCreator(project, preferences, "T:\\program",
                          {{paths, formats, files, boxes, loop, shell, clock, screen, texts, jobs}, host, cancel, ftp})
        .CreateGallery(mode, 0);
  }

  TemporaryFolder folder;
  PathMap paths{{{'T', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
  Project project;
  Preferences preferences;
  RecordingMessageBox boxes;
  Journal journal;
  RecordingShell shell{journal};
  FixedClock clock;
  QtEventLoop loop;
  Screen screen;
  PangoTextRaster texts;
  CancelCheck cancel{boxes};
  UploadLog log{folder.Path() / "program", clock, boxes};
  RunWindow host{
      [this](QWidget* owner) { return std::make_unique<frmProgress>(log, cancel, shell, "T:\\program", owner); }};
};

}  // namespace vantorium::fakes
