#pragma once

#include "ui/model/main/ProgramVersion.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmAbout;
}

namespace vantorium::ui {

/// Shows the program's version and its web address.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(const ProgramVersion& version, QWidget* parent = nullptr);
  ~frmAbout() override;

 private:
  std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace vantorium::ui
