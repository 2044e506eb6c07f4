#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmFrameNameSettings;
}

namespace vantorium::ui {

class FieldBinder;

/// Edits the names of a gallery's frames. Each change is stored at once.
class frmFrameNameSettings : public QDialog {
  Q_OBJECT

 public:
  frmFrameNameSettings(FieldBinder& binder, QWidget* parent);
  ~frmFrameNameSettings() override;

 private:
  std::unique_ptr<Ui::frmFrameNameSettings> ui_;
};

}  // namespace vantorium::ui
