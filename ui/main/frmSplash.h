#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmSplash;
}

namespace vantorium::ui {

/// The splash window, shown in the middle of the screen while the program starts. Nothing waits for it.
class frmSplash : public QWidget {
  Q_OBJECT

 public:
  frmSplash();
  ~frmSplash() override;

  /// Reports that one of the seven stages is done.
  void Step();

 private:
  std::unique_ptr<Ui::frmSplash> ui_;
};

}  // namespace vantorium::ui
