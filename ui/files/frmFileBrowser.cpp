#include "ui/files/frmFileBrowser.h"

#include "ui/files/FileWindow.h"
#include "ui/model/dialogs/DialogPlace.h"
#include "ui/qt/QtText.h"
#include "ui/widgets/ExecDialog.h"

#include <QApplication>
#include <QDir>

namespace vantorium::ui {

frmFileBrowser::frmFileBrowser(const env::PathMap& paths, env::MessageBoxPort& boxes, const env::mFileFunctions& files)
    : paths_(paths), boxes_(boxes), files_(files) {}

FileDialogResult frmFileBrowser::DisplayFileDialog(const FileDialogRequest& request) {
  const std::filesystem::path home = NearestFolder(paths_, folder_, FromQt(QDir::homePath()));
  FileWindow window(request, files_, boxes_, home, QApplication::activeWindow());
  if (ExecDialog(window) != QDialog::Accepted) return {};
  folder_ = window.Choice().folder;
  return window.Choice();
}

}  // namespace vantorium::ui
