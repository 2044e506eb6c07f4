#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class frmPageLinks;
}

namespace vantorium::ui {

class FieldBinder;

/// The Page Links page of the main window, for the links between the gallery's pages.
class frmPageLinks : public QWidget {
  Q_OBJECT

 public:
  explicit frmPageLinks(FieldBinder& binder, QWidget* parent = nullptr);
  ~frmPageLinks() override;

 private:
  std::unique_ptr<Ui::frmPageLinks> ui_;
};

}  // namespace vantorium::ui
