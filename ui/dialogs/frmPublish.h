#pragma once

#include "ui/model/dialogs/PublishModel.h"

#include <QDialog>
#include <QLineEdit>
#include <memory>

namespace Ui {
class frmPublish;
}

namespace vantorium {

/// The dialog for the servers of uploads, one of which is chosen by leaving it.
class frmPublish : public QDialog {
  Q_OBJECT

 public:
  /// Reads the list, see publish/ServerListFile.h; failures are told in boxes.
  frmPublish(std::filesystem::path serverListFile, MessageBoxPort& boxes, QWidget* parent);
  ~frmPublish() override;

  /// The dialog is for the upload of a folder. Before it is shown.
  void SetHideIndexFile(bool hide);
  [[nodiscard]] bool QueryPublish() const { return model_.QueryPublish(); }
  [[nodiscard]] std::int16_t GetTimeout() const { return model_.GetTimeout(); }
  /// What its boxes show.
  [[nodiscard]] const ServerProfile& Shown() const { return model_.Shown(); }

  void accept() override;
  void reject() override;

 signals:
  /// The dialog is no longer the active window.
  void Left();

 protected:
  bool event(QEvent* event) override;

 private:
  void BindField(QLineEdit& control, ServerField field);
  void ShowList();
  void ShowProfile();
  void ShowButtons();
  void AddNew();

  PublishModel model_;
  std::unique_ptr<Ui::frmPublish> ui_;
};

}  // namespace vantorium
