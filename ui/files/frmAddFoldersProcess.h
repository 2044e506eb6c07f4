#pragma once

#include "ui/model/files/FolderWalk.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmAddFoldersProcess;
}

namespace vantorium::ui {

/// The small window that is shown while the photographs of folders are added. Stop, Escape and the title bar stop the
/// walk.
class frmAddFoldersProcess : public QDialog, public FolderWalkProgress {
  Q_OBJECT

 public:
  explicit frmAddFoldersProcess(QWidget* parent = nullptr);
  ~frmAddFoldersProcess() override;

  void Open() override;
  void Show(const std::string& folder, std::size_t added) override;
  [[nodiscard]] bool IsCancelled() const override { return Cancelled; }
  void Close() override;

  void reject() override { Cancelled = true; }

  bool Cancelled = false;

 private:
  std::unique_ptr<Ui::frmAddFoldersProcess> ui_;
};

}  // namespace vantorium::ui
