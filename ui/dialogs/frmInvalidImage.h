#pragma once

#include "env/Shell.h"
#include "ui/model/files/InvalidImage.h"

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmInvalidImage;
}

namespace vantorium::ui {

/// Asks what to do with an image that cannot be decoded.
class frmInvalidImage : public QDialog {
  Q_OBJECT

 public:
  explicit frmInvalidImage(env::Shell& shell, QWidget* parent = nullptr);
  ~frmInvalidImage() override;

  /// Beeps, asks and waits for the answer; closing the window means Ignore.
  [[nodiscard]] InvalidImageAnswer ShowDialog(const std::string& imageName);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Answer(InvalidImageAnswer answer);

  env::Shell& shell_;
  std::unique_ptr<Ui::frmInvalidImage> ui_;
  InvalidImageAnswer answer_ = InvalidImageAnswer::Ignore;
};

}  // namespace vantorium::ui
