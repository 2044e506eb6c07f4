#include "ui/dialogs/AddBrowserDialog.h"

#include "ui/dialogs/frmAddBrowser.h"

#include <QApplication>

namespace vantorium::ui {

void AddBrowserDialog::Show(BrowserEntry& entry) {
  frmAddBrowser(entry, files_, paths_, programFolder_, QApplication::activeModalWidget()).exec();
}

}  // namespace vantorium::ui
