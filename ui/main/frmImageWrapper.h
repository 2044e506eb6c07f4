#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmImageWrapper;
}

namespace vantorium::env {
class PathMap;
}  // namespace vantorium::env

namespace vantorium::ui {

class FieldBinder;

/// The Image Wrappers page of the main window, for the pages that show one image each.
class frmImageWrapper : public QWidget {
  Q_OBJECT

 public:
  frmImageWrapper(FieldBinder& binder, const env::PathMap& paths, QWidget* parent = nullptr);
  ~frmImageWrapper() override;

 private:
  std::unique_ptr<Ui::frmImageWrapper> ui_;
};

}  // namespace vantorium::ui
