#pragma once

#include "ui/model/dialogs/NewWebServerModel.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmNewWebServer;
}

namespace vantorium::ui {

/// Asks for the name of a new server.
class frmNewWebServer : public QDialog {
  Q_OBJECT

 public:
  explicit frmNewWebServer(QWidget* parent = nullptr);
  ~frmNewWebServer() override;

  [[nodiscard]] const std::string& GetServerName() const { return model_.GetServerName(); }
  [[nodiscard]] bool IsCancelled() const { return model_.IsCancelled(); }

  void accept() override;
  void reject() override;

 private:
  NewWebServerModel model_;
  std::unique_ptr<Ui::frmNewWebServer> ui_;
};

}  // namespace vantorium::ui
