#pragma once

#include "ui/main/BusyPointer.h"

#include <QDialog>
#include <QPointer>
#include <memory>
#include <optional>
#include <string>

namespace Ui {
class frmInfo;
}

namespace vantorium::ui {

/// A small window that says what the program is busy with, and shows the busy pointer meanwhile. The user can't close
/// it. The keyboard focus stays with, or returns to, the window that has it.
class frmInfo : public QDialog {
  Q_OBJECT

 public:
  explicit frmInfo(QWidget* parent = nullptr);
  ~frmInfo() override;

  void SetText(const std::string& text);

  void setVisible(bool visible) override;
  void reject() override {}

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  std::unique_ptr<Ui::frmInfo> ui_;
  std::optional<BusyPointer> pointer_;
  QPointer<QWidget> activeBefore_;
};

}  // namespace vantorium::ui
