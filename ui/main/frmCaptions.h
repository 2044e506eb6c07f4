#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmCaptions;
}

namespace vantorium::ui {

class FieldBinder;

/// The Captions page of the main window.
class frmCaptions : public QWidget {
  Q_OBJECT

 public:
  explicit frmCaptions(FieldBinder& binder, QWidget* parent = nullptr);
  ~frmCaptions() override;

 private:
  std::unique_ptr<Ui::frmCaptions> ui_;
};

}  // namespace vantorium::ui
