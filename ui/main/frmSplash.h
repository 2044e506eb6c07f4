#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmSplash;
}

namespace vantorium {

/// The window that is up while the program starts, in the middle of the screen. Nothing waits for it.
class frmSplash : public QWidget {
  Q_OBJECT

 public:
  frmSplash();
  ~frmSplash() override;

  /// One of the seven stages is done.
  void Step();

 private:
  std::unique_ptr<Ui::frmSplash> ui_;
};

}  // namespace vantorium
