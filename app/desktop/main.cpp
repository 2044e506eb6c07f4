#include "env/BundledFiles.h"
#include "env/DriveTable.h"
#include "env/ProgramFolder.h"
#include "env/RuntimeFailure.h"
#include "env/StandardStreams.h"
#include "env/SystemClock.h"
#include "image/PangoTextRaster.h"
#include "ui/Resources.h"
#include "ui/files/frmBrowseForFolder.h"
#include "ui/files/frmFileBrowser.h"
#include "ui/main/frmMain.h"
#include "ui/model/main/MainModel.h"
#include "ui/ports/QtCommonDialogs.h"
#include "ui/ports/QtEventLoop.h"
#include "ui/ports/QtMessageBox.h"
#include "ui/ports/QtScreen.h"
#include "ui/ports/QtShell.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/PixelFrames.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <algorithm>
#include <thread>

namespace vantorium {
namespace {

/// Returns the port of FTP servers: 21 unless the environment variable VANTORIUM_FTP_PORT holds another.
std::uint16_t FtpPort() {
  const int port = qEnvironmentVariableIntValue("VANTORIUM_FTP_PORT");
  return port > 0 && port <= 65535 ? static_cast<std::uint16_t>(port) : 21;
}

/// The objects that the main window depends on, for the whole run of the program.
class Desktop {
 public:
  [[nodiscard]] DesktopPorts AllPorts() {
    return {{paths_, formats_, files_, boxes_, loop_, shell_, clock_, screen_, texts_,
             std::max(1U, std::thread::hardware_concurrency())},
            dialogs_,
            browser_,
            folders_,
            programFolder_,
            bundled_,
            {VANTORIUM_VERSION_MAJOR, VANTORIUM_VERSION_MINOR, VANTORIUM_VERSION_REVISION},
            FtpPort()};
  }

 private:
  ProcessEnvironment around_ = EnvironmentOfProcess();
  std::filesystem::path programFolder_ = FindProgramFolder(std::nullopt, around_);
  PathMap paths_ = ReadPathMap(GetINIFileName(programFolder_), around_.home);
  RegionalFormats formats_;
  mFileFunctions files_{paths_, formats_};
  BundledFiles bundled_{BundledFolders(programFolder_, around_)};
  QtMessageBox boxes_;
  QtEventLoop loop_;
  QtShell shell_{paths_};
  SystemClock clock_;
  QtScreen screen_;
  PangoTextRaster texts_;
  QtCommonDialogs dialogs_{texts_};
  frmFileBrowser browser_{paths_, boxes_, files_};
  QtFolderBrowser folders_{paths_};
};

int ShowWindow() {
  Desktop desktop;
  MainModel model(desktop.AllPorts());
  frmMain window(model);
  QObject::connect(&window, &frmMain::Closed, qApp, &QApplication::quit, Qt::QueuedConnection);
  window.Start(FromQt(QApplication::arguments().value(1)));
  window.show();
  return QApplication::exec();
}

int Run(int argc, char** argv) {
  QApplication application(argc, argv);
  LoadVantoriumResources();
  QApplication::setStyle(new PixelFrames);
  QApplication::setApplicationName("vantorium");
  QApplication::setDesktopFileName("vantorium");
  QApplication::setWindowIcon(QIcon(":/vantorium/vantorium.svg"));

  try {
    return ShowWindow();
  } catch (const RuntimeFailure& failure) {  // from the setup of the window
    QMessageBox::critical(nullptr, "Vantorium", ToQt(failure.Description()));
    return 1;
  }
}

}  // namespace
}  // namespace vantorium

int main(int argc, char** argv) {
  vantorium::HoldStandardStreams();
  return vantorium::Run(argc, argv);
}
