#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmFind;
}

namespace vantorium::ui {

class FindModel;

/// Asks for the name of an image to find; the answer is in the model.
class frmFind : public QDialog {
  Q_OBJECT

 public:
  explicit frmFind(FindModel& model, QWidget* parent = nullptr);
  ~frmFind() override;

  void accept() override;
  void reject() override;

 private:
  void TakeTitle(const QString& title);

  FindModel& model_;
  std::unique_ptr<Ui::frmFind> ui_;
};

}  // namespace vantorium::ui
