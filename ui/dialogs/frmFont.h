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

namespace vantorium {

/// Lets its user choose a font with all that a FontDescription holds, and shows a sample of it. A face that the machine
/// lacks, such as that of a project from elsewhere, is kept as long as no other is chosen.
class frmFont : public QDialog {
  Q_OBJECT

 public:
  /// Lets its user choose a color; true when it changed.
  using PickColor = std::function<bool(std::uint32_t& color)>;

  /// Offers `faces`.
  frmFont(const FontDescription& font, const std::vector<std::string>& faces, PickColor pickColor, QWidget* parent);
  ~frmFont() override;

  [[nodiscard]] const FontDescription& Font() const { return font_; }

 private:
  void ShowFont();
  void ConnectFace();
  void ConnectRest();
  void EditFace(const QString& name);
  void ChooseColor();
  void ShowSample();

  std::unique_ptr<Ui::frmFont> ui_;
  FontDescription font_;
  PickColor pickColor_;
};

}  // namespace vantorium
