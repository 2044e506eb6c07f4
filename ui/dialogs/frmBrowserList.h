#pragma once

#include "env/PathMap.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmBrowserList;
}

namespace vantorium::ui {

class BrowserList;

/// Shows the list of browsers and lets the user edit it. Changes stay in the list however the dialog is closed.
class frmBrowserList : public QDialog {
  Q_OBJECT

 public:
  frmBrowserList(BrowserList& list, const env::PathMap& paths, QWidget* parent = nullptr);
  ~frmBrowserList() override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(void (BrowserList::*button)());
  void ShowEntries();
  void Select();

  BrowserList& list_;
  const env::PathMap& paths_;
  std::unique_ptr<Ui::frmBrowserList> ui_;
};

}  // namespace vantorium::ui
