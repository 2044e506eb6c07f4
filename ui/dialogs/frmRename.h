#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmRename;
}

namespace vantorium::ui {

class RenameModel;

/// Asks for a new name for the current image or for all images; the answer is in the model.
class frmRename : public QDialog {
  Q_OBJECT

 public:
  explicit frmRename(RenameModel& model, QWidget* parent = nullptr);
  ~frmRename() override;

  void accept() override;
  void reject() override;

 private:
  void TakeNameBase(const QString& nameBase);

  RenameModel& model_;
  std::unique_ptr<Ui::frmRename> ui_;
};

}  // namespace vantorium::ui
