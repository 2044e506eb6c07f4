#pragma once

#include "ui/model/dialogs/SelectColorsModel.h"
#include "ui/widgets/ColorButton.h"

#include <QDialog>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class frmSelectColors;
}

namespace vantorium::ui {

/// The window of SelectColorsModel: five buttons, and a small sample page in their colors.
class frmSelectColors : public QDialog {
  Q_OBJECT

 public:
  frmSelectColors(const std::string& title, const core::PageColors& colors, const core::PageColors& others,
                  ColorDialog& dialog, QWidget* owner);
  ~frmSelectColors() override;

  [[nodiscard]] const SelectColorsModel& Model() const { return model_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void reject() override;

 private:
  /// A color, its button, and the element that shows it on the page.
  struct Row {
    core::Color core::PageColors::*color;
    ColorButton* button;
    QWidget* element;
  };

  void ConnectRow(const Row& row);
  void Choose(core::Color core::PageColors::*color);
  void ShowColors();

  std::unique_ptr<Ui::frmSelectColors> ui_;
  SelectColorsModel model_;
  ColorDialog& dialog_;
  std::vector<Row> rows_;
};

/// Lets the user edit `colors` in a dialog over `owner`, which may be null, and copy `others` into them. Returns false
/// and leaves `colors` as they are if the user cancels.
[[nodiscard]] bool SelectColors(const std::string& title, core::PageColors& colors, const core::PageColors& others,
                                ColorDialog& dialog, QWidget* owner);

}  // namespace vantorium::ui
