#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmRunWarnings;
}

namespace vantorium::ui {

class RunWarningsModel;

/// Lists what would go wrong in a run. Is accepted if the user wants the gallery all the same.
class frmRunWarnings : public QDialog {
  Q_OBJECT

 public:
  explicit frmRunWarnings(RunWarningsModel& model, QWidget* parent = nullptr);
  ~frmRunWarnings() override;

 private:
  void ShowFindings();
  void Choose(int row);
  void Rename();

  RunWarningsModel& model_;
  std::unique_ptr<Ui::frmRunWarnings> ui_;
};

}  // namespace vantorium::ui
