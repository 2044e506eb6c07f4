#pragma once

#include <QDialog>
#include <memory>
#include <vector>

namespace Ui {
class frmFileNameSettings;
}

namespace vantorium::ui {

class FieldBinder;
class NameBox;

/// Edits the names of a gallery's files and folders. However it is closed, it stores what it shows.
class frmFileNameSettings : public QDialog {
  Q_OBJECT

 public:
  frmFileNameSettings(FieldBinder& binder, QWidget* parent);
  ~frmFileNameSettings() override;

  void done(int result) override;

 private:
  FieldBinder& binder_;
  std::unique_ptr<Ui::frmFileNameSettings> ui_;
  std::vector<NameBox*> names_;  ///< children of this dialog
};

}  // namespace vantorium::ui
