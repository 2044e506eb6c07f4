#pragma once

#include "ui/model/dialogs/SelectColorsModel.h"
#include "ui/widgets/ColourButton.h"

#include <QDialog>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class frmSelectColors;
}

namespace vantorium {

/// The window of SelectColorsModel: five buttons, and a small page in their colours.
class frmSelectColors : public QDialog {
  Q_OBJECT

 public:
  frmSelectColors(const std::string& title, const PageColours& colours, const PageColours& others, ColourDialog& dialog,
                  QWidget* owner);
  ~frmSelectColors() override;

  [[nodiscard]] const SelectColorsModel& Model() const { return model_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void reject() override;

 private:
  /// A colour, its button and what shows it on the page.
  struct Row {
    Colour PageColours::*colour;
    ColourButton* button;
    QWidget* element;
  };

  void ConnectRow(const Row& row);
  void Choose(Colour PageColours::*colour);
  void ShowColours();

  std::unique_ptr<Ui::frmSelectColors> ui_;
  SelectColorsModel model_;
  ColourDialog& dialog_;
  std::vector<Row> rows_;
};

/// Lets the user edit `colours` in a dialog over `owner`, which may be null, and copy `others` into them. True when it
/// was not cancelled; only then `colours` has new values.
[[nodiscard]] bool SelectColors(const std::string& title, PageColours& colours, const PageColours& others,
                                ColourDialog& dialog, QWidget* owner);

}  // namespace vantorium
