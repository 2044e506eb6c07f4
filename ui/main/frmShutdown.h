#pragma once

#include <QDialog>
#include <memory>
#include <string>

namespace Ui {
class frmShutdown;
}

namespace vantorium::ui {

/// The small window that says what the program does before it exits. Nothing waits for it, and the user can't close it.
class frmShutdown : public QDialog {
  Q_OBJECT

 public:
  explicit frmShutdown(QWidget* parent = nullptr);
  ~frmShutdown() override;

  void ShowStep(const std::string& text);

  void reject() override {}

 private:
  std::unique_ptr<Ui::frmShutdown> ui_;
};

}  // namespace vantorium::ui
