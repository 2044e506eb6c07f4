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

namespace vantorium::desktop {
namespace {

/// Returns the port of FTP servers: 21 unless the environment variable VANTORIUM_FTP_PORT holds another.
std::uint16_t FtpPort() {
  const int port = qEnvironmentVariableIntValue("VANTORIUM_FTP_PORT");
  return port > 0 && port <= 65535 ? static_cast<std::uint16_t>(port) : 21;
}

/// The objects that the main window depends on, for the whole run of the program.
class Desktop {
 public:
  [[nodiscard]] ui::DesktopPorts AllPorts() {
    return {{paths_, formats_, files_, boxes_, loop_, shell_, clock_, screen_, texts_,
             std::max(1U, std::thread::hardware_concurrency())},
            dialogs_,
            browser_,
            folders_,
            programFolder_,
            bundled_,
            {VANTORIUM_VERSION_MAJOR, VANTORIUM_VERSION_MINOR, VANTORIUM_VERSION_REVISION},
            FtpPort(),
            env::FindCacheFolder(around_)};
  }

 private:
  env::ProcessEnvironment around_ = env::EnvironmentOfProcess();
  std::filesystem::path programFolder_ = env::FindProgramFolder(std::nullopt, around_);
  env::PathMap paths_ = env::ReadPathMap(env::GetINIFileName(programFolder_), around_.home);
  env::RegionalFormats formats_;
  env::mFileFunctions files_{paths_, formats_};
  env::BundledFiles bundled_{env::BundledFolders(programFolder_, around_)};
  ui::QtMessageBox boxes_;
  ui::QtEventLoop loop_;
  ui::QtShell shell_{paths_};
  env::SystemClock clock_;
  ui::QtScreen screen_;
  image::PangoTextRaster texts_;
  ui::QtCommonDialogs dialogs_{texts_};
  ui::frmFileBrowser browser_{paths_, boxes_, files_};
  ui::QtFolderBrowser folders_{paths_};
};

int ShowWindow() {
  Desktop desktop;
  ui::MainModel model(desktop.AllPorts());
  ui::frmMain window(model);
  QObject::connect(&window, &ui::frmMain::Closed, qApp, &QApplication::quit, Qt::QueuedConnection);
  window.Start(ui::FromQt(QApplication::arguments().value(1)));
  window.show();
  return QApplication::exec();
}

int Run(int argc, char** argv) {
  QApplication application(argc, argv);
  LoadVantoriumResources();
  QApplication::setStyle(new ui::PixelFrames);
  QApplication::setApplicationName("vantorium");
  QApplication::setDesktopFileName("vantorium");
  QApplication::setWindowIcon(QIcon(":/vantorium/vantorium.svg"));

  try {
    return ShowWindow();
  } catch (const env::RuntimeFailure& failure) {  // from the setup of the window
    QMessageBox::critical(nullptr, "Vantorium", ui::ToQt(failure.Description()));
    return 1;
  }
}

}  // namespace
}  // namespace vantorium::desktop

int main(int argc, char** argv) {
  vantorium::env::HoldStandardStreams();
  return vantorium::desktop::Run(argc, argv);
}
