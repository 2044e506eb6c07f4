#pragma once

#include "env/mCommonDialogs.h"

#include <QDialog>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Ui {
class frmFont;
}

namespace vantorium::ui {

/// Lets the user choose a font with all that a FontDescription holds, and shows a sample of it. A face that is not
/// installed, such as one of a project from another machine, is kept until the user chooses another.
class frmFont : public QDialog {
  Q_OBJECT

 public:
  /// Lets the user choose a color. Returns true on OK, also with the color of before; only then is `color` written.
  using PickColor = std::function<bool(std::uint32_t& color)>;

  /// `faces` are the names in the list.
  frmFont(const env::FontDescription& font, const std::vector<std::string>& faces, PickColor pickColor,
          QWidget* parent);
  ~frmFont() override;

  [[nodiscard]] const env::FontDescription& Font() const { return font_; }

 private:
  void ShowFont();
  void ConnectFace();
  void ConnectRest();
  void EditFace(const QString& name);
  void ChooseColor();
  void ShowSample();

  std::unique_ptr<Ui::frmFont> ui_;
  env::FontDescription font_;
  PickColor pickColor_;
};

}  // namespace vantorium::ui
