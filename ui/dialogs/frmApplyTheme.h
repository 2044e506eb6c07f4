#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmApplyTheme;
}

namespace vantorium::ui {

class ThemeModel;

/// Shows the themes as pictures. Is accepted once the project has the settings of one.
class frmApplyTheme : public QDialog {
  Q_OBJECT

 public:
  explicit frmApplyTheme(ThemeModel& model, QWidget* parent = nullptr);
  ~frmApplyTheme() override;

  void accept() override;

 private:
  void ShowThemes();

  ThemeModel& model_;
  std::unique_ptr<Ui::frmApplyTheme> ui_;
};

}  // namespace vantorium::ui
