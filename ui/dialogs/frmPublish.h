#pragma once

#include "ui/model/dialogs/PublishModel.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <memory>

namespace Ui {
class frmPublish;
}

namespace vantorium::ui {

/// The dialog for the upload servers; accepting it chooses the selected one.
class frmPublish : public QDialog {
  Q_OBJECT

 public:
  /// Reads the list, see publish/ServerListFile.h; failures are shown in message boxes.
  frmPublish(std::filesystem::path serverListFile, env::MessageBoxPort& boxes, QWidget* parent);
  ~frmPublish() override;

  /// Sets whether the dialog is for the upload of a folder, which has no index file. Call before it is shown.
  void SetHideIndexFile(bool hide);
  [[nodiscard]] bool QueryPublish() const { return model_.QueryPublish(); }
  [[nodiscard]] std::int16_t GetTimeout() const { return model_.GetTimeout(); }
  /// The profile that the text boxes show.
  [[nodiscard]] const publish::ServerProfile& Shown() const { return model_.Shown(); }

  void accept() override;
  void reject() override;

 signals:
  /// The dialog was deactivated or hidden.
  void Left();

 protected:
  bool event(QEvent* event) override;

 private:
  void BindField(QLineEdit& control, ServerField field);
  void BindSwitch(QCheckBox& control, ServerSwitch box);
  void ShowList();
  void ShowProfile();
  void ShowButtons();
  void AddNew();

  PublishModel model_;
  std::unique_ptr<Ui::frmPublish> ui_;
};

}  // namespace vantorium::ui
