#include "image/PangoTextRaster.h"
// Writes a picture of every window and page for the documents. Usage: vantorium-screenshots FOLDER
//
// Shows the program's windows with a small project. Its photographs are copies of the sample picture.
#include "core/generation/RunHost.h"
#include "tests/fakes/SourceFolder.h"
#include "tests/ui/MainWindowHarness.h"
#include "ui/Resources.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/dialogs/frmFont.h"
#include "ui/dialogs/frmInvalidImage.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/dialogs/frmRunWarnings.h"
#include "ui/dialogs/frmShuffle.h"
#include "ui/files/frmAddFoldersProcess.h"
#include "ui/files/frmBrowseForFolder.h"
#include "ui/files/frmFileBrowser.h"
#include "ui/files/frmPreview.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmShutdown.h"
#include "ui/main/frmSplash.h"
#include "ui/model/dialogs/RunWarningsModel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QPixmap>
#include <iostream>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;

class Photographer {
 public:
  explicit Photographer(std::filesystem::path folder) : folder_(std::move(folder)) {
    std::filesystem::create_directories(folder_);
    harness_.folder.Write("data/preview.jpg",
                          fakes::TemporaryFolder::ReadFile(fakes::SourceFolder() / "data/preview.jpg"));
    std::filesystem::copy(fakes::SourceFolder() / "data/themes", harness_.folder.Path() / "data/themes");
    harness_.folder.Write("program/vantorium.ini",
                          "[BROWSERS]\r\nCount=\"2\"\r\nName1=\"Chromium\"\r\nLocation1=\"Z:\\usr\\bin\\chromium\"\r\n"
                          "Name2=\"Text Browser\"\r\nLocation2=\"Z:\\usr\\bin\\links\"\r\n");
    harness_.folder.Write("program/vantorium.pub",
                          "[PUBLISH]\r\nServerCount=\"1\"\r\nPreferredServer=\"1\"\r\nServerName1=\"My Web Space\"\r\n"
                          "ServerURL1=\"ftp.example.org\"\r\nUserName1=\"anna\"\r\nIndexFile1=\"gallery/index.htm\"\r\n"
                          "TimeOut1=\"0\"\r\nJumpTo1=\"web\"\r\n");
    harness_.Start();
    AddPhotographs();
  }

  void TakeAll() {
    TakePages();
    TakeDialogs();
    TakeRunWindows();
    TakeSmallWindows();
    TakeRunWarnings();
  }

 private:
  void AddPhotographs() {
    for (const char* name : {"Lake", "Portrait", "Balloons", "Harbour", "Evening", "Morning"}) {
      const std::string file = std::string(name) + ".jpg";
      harness_.folder.Write(file, harness_.folder.Read("data/preview.jpg"));
      harness_.fileBrowser.answer = {"T:\\" + file, "T:\\", {file}};
      harness_.GoTo(1);
      Click(*harness_.window, "btnImagesAddFiles");
    }
    auto& list = Find<QWidget>(*harness_.window, "lvImagesList");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::qWait(300);  // for the preview
  }

  void Take(QWidget& window, const std::string& name) const {
    QApplication::processEvents();
    if (!window.grab().save(QString::fromStdString((folder_ / (name + ".png")).string()))) {
      std::cerr << "cannot write " << name << '\n';
    }
  }

  void TakePages() {
    const char* const names[] = {"gallery", "images", "image-wrappers", "thumbnails", "captions", "page-links"};
    harness_.GoTo(0);
    Click(*harness_.window, "checkGallerySlideShow");
    for (int tab = 0; tab < 6; ++tab) {
      harness_.GoTo(tab);
      Take(*harness_.window, std::string("main-") + names[tab]);
    }
    harness_.GoTo(0);
    auto& layout = Find<QComboBox>(*harness_.window, "comboGalleryLayoutType");
    layout.setFocus();
    QTest::keyClick(&layout, Qt::Key_Down);
    Take(*harness_.window, "main-gallery-frames");
    QTest::keyClick(&layout, Qt::Key_Up);
  }

  /// Opens a modal dialog, takes its picture and closes it.
  void TakeModal(const std::function<void()>& open, const std::function<void(QWidget&)>& prepare = {}) {
    DriveModal(open, [&](QWidget& dialog) {
      if (prepare) prepare(dialog);
      QTest::qWait(150);
      Take(dialog, dialog.objectName().toStdString());
    });
  }
  void TakeOnClick(int tab, const char* button) {
    harness_.GoTo(tab);
    TakeModal([&] { Click(*harness_.window, button); });
  }

  void TakeDialogs() {
    TakeOnClick(0, "btnGalleryInfo");
    TakeOnClick(0, "btnGalleryFileNameSettings");
    TakeOnClick(0, "btnGallerySingleFrameNames");
    TakeOnClick(1, "btnImagesFilters");
    TakeOnClick(1, "btnImagesWatermark");
    TakeOnClick(1, "btnImagesRename");
    TakeOnClick(1, "btnImagesFind");
    harness_.GoTo(2);
    Click(*harness_.window, "checkImageWrapperSetColors");
    TakeOnClick(2, "btnImageWrapperBODY");
    TakeOnClick(2, "btnImageWrapperColors");
    TakeOnClick(5, "btnPageLinksImageFirstLink");
    TakeModal([&] { harness_.Trigger("menuActionsCreate"); });
    TakeModal([&] { harness_.Trigger("menuActionsCreate"); },
              [&](QWidget& create) {
                Click(create, "optionUploadGallery");
                TakeModal([&] { Click(create, "btnBrowsePublishDestination"); },
                          [&](QWidget& publish) { TakeModal([&] { Click(publish, "btnNew"); }); });
              });
    TakeModal([&] { harness_.Trigger("menuOptionsAvailableBrowsers"); },
              [&](QWidget& list) { TakeModal([&] { Click(list, "btnAddBrowser"); }); });
    TakeModal([&] { harness_.Trigger("menuOptionsSetTempFolderLocation"); });
    TakeModal([&] { harness_.Trigger("menuOptionsApplyTheme"); });
    TakeModal([&] { harness_.Trigger("menuHelpAbout"); });
    harness_.GoTo(1);
    Click(*harness_.window, "btnImagesDescriptions");
    auto& descriptions = Find<QWidget>(*harness_.window, "frmImageDescriptions");
    Take(descriptions, "frmImageDescriptions");
    descriptions.close();
    TakeModal([&] { Click(*harness_.window, "btnImagesAddFolder"); });

    frmFileBrowser files(harness_.paths, harness_.boxes, harness_.files);
    TakeModal(
        [&] {
          std::ignore = files.DisplayFileDialog({.title = "Select Link Graphic",
                                                 .initialFolder = "T:\\",
                                                 .fileName = "Lake.jpg",
                                                 .filter = "All Files (*.*)|*.*",
                                                 .preview = true});
        },
        [](QWidget& dialog) {
          auto& view = Find<QWidget>(dialog, "treeView");
          view.setFocus();
          QTest::keyClick(&view, Qt::Key_End);
          QTest::qWait(400);
        });
    QtFolderBrowser folders(harness_.paths);
    TakeModal([&] { std::ignore = folders.BrowseForFolder("Select Source Folder", "T:\\data"); });
    frmInvalidImage invalid(harness_.shell, nullptr);
    TakeModal([&] { std::ignore = invalid.ShowDialog("Lake.jpg"); });
  }

  void TakeRunWindows() {
    publish::UploadLog log(harness_.folder.Path() / "program", harness_.clock, harness_.boxes);
    generation::CancelCheck cancel(harness_.boxes);
    frmProgress progress(log, cancel, harness_.shell, "T:\\program", nullptr);
    progress.SetMax(100);
    progress.Show();
    progress.SetCaption("Publishing Gallery");
    progress.SetText1("Please wait while the Gallery is being published...");
    progress.SetText2("Creating Image \"Lake.jpg\"...");
    progress.SetProgress(42);
    progress.SetFileProgress(70);
    progress.SetText3("220 Service ready\r\n331 Password required\r\n230 User logged in\r\n150 Opening connection\r\n",
                      true);
    QTest::qWait(100);
    Take(progress, "frmProgress");
  }

  void TakeSmallWindows() {
    frmShuffle shuffle;
    shuffle.Open();
    shuffle.SetPercent(60);
    Take(shuffle, "frmShuffle");
    frmAddFoldersProcess adding;
    adding.Open();
    adding.Show("C:\\Photographs\\Holidays", 128);
    Take(adding, "frmAddFoldersProcess");
    env::FontDescription watermark;
    watermark.Name = "Liberation Sans";
    watermark.Size = 36;
    watermark.Weight = 700;
    frmFont font(
        watermark, image::PangoTextRaster().FaceNames(), [](std::uint32_t&) { return false; }, nullptr);
    font.show();
    Take(font, "frmFont");
    frmPreview preview(harness_.paths);
    preview.SetPicture("Lake.jpg", "T:\\Lake.jpg");
    preview.resize(480, 320);
    Take(preview, "frmPreview");
    frmSplash splash;
    for (int i = 0; i < 4; ++i) splash.Step();
    splash.show();
    Take(splash, "frmSplash");
    frmShutdown shutdown;
    shutdown.ShowStep("Saving Preferences");
    shutdown.show();
    Take(shutdown, "frmShutdown");
    frmInfo info;
    info.SetText("Please wait... Clearing Temporary Folder.");
    info.show();
    Take(info, "frmInfo");
  }

  /// Damages some images, so it must come last.
  void TakeRunWarnings() {
    core::Project& project = harness_.model->CurrentProject();
    project.images.Rename(1, "Lake#2.jpg");
    project.images.Rename(4, "portrait.jpg");
    std::filesystem::remove(harness_.folder.Path() / "Morning.jpg");
    generation::RunOrder order;
    generation::SetIndexFile(order, "T:\\gallery\\index.htm");
    generation::RunForecast forecast(project, order, harness_.model->Ports());
    RunWarningsModel model(forecast, project, harness_.model->Images());
    frmRunWarnings warnings(model);
    TakeModal([&] { warnings.exec(); });
  }

  std::filesystem::path folder_;
  fakes::MainWindowHarness harness_;
};

}  // namespace
}  // namespace vantorium::ui

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  LoadVantoriumResources();
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 2) {
    std::cerr << "Use: vantorium-screenshots FOLDER\n";
    return 2;
  }
  vantorium::ui::Photographer(argv[1]).TakeAll();
  return 0;
}
