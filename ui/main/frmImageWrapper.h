#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmImageWrapper;
}

namespace vantorium {

class FieldBinder;
class PathMap;

/// The Image Wrappers page of the main window, for the pages that show one image each.
class frmImageWrapper : public QWidget {
  Q_OBJECT

 public:
  frmImageWrapper(FieldBinder& binder, const PathMap& paths, QWidget* parent = nullptr);
  ~frmImageWrapper() override;

 private:
  std::unique_ptr<Ui::frmImageWrapper> ui_;
};

}  // namespace vantorium
