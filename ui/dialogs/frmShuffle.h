#pragma once

#include "core/Shuffle.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmShuffle;
}

namespace vantorium::ui {

/// The small window that is shown while the images are shuffled. Stop, Escape and the title bar stop the shuffle.
class frmShuffle : public QDialog, public core::ShuffleProgress {
  Q_OBJECT

 public:
  explicit frmShuffle(QWidget* parent = nullptr);
  ~frmShuffle() override;

  void Open() override;
  void SetPercent(double percent) override;
  [[nodiscard]] bool StopRequested() const override { return stopRequested_; }
  void Close() override;

  void reject() override { stopRequested_ = true; }

 private:
  std::unique_ptr<Ui::frmShuffle> ui_;
  bool stopRequested_ = false;
};

}  // namespace vantorium::ui
