#include "ui/AddBrowserDialog.h"

#include "ui/frmAddBrowser.h"

#include <QApplication>

namespace vantorium {

void AddBrowserDialog::Show(BrowserEntry& entry) {
  frmAddBrowser(entry, files_, paths_, programFolder_, QApplication::activeModalWidget()).exec();
}

}  // namespace vantorium
