#include "ui/ports/QtCommonDialogs.h"

#include "ui/dialogs/frmFont.h"
#include "ui/qt/QtColor.h"

#include <QApplication>
#include <QColorDialog>

namespace vantorium::ui {

bool QtCommonDialogs::ShowColorDialog(std::uint32_t& color, env::CustomColors& custom) {
  for (std::size_t i = 0; i < custom.size(); ++i) QColorDialog::setCustomColor(static_cast<int>(i), ToQt(custom[i]));
  QColorDialog dialog(ToQt(color), QApplication::activeWindow());
  dialog.setObjectName("ColorDialog");
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (dialog.exec() != QDialog::Accepted) return false;
  color = FromQt(dialog.selectedColor());
  for (std::size_t i = 0; i < custom.size(); ++i) custom[i] = FromQt(QColorDialog::customColor(static_cast<int>(i)));
  lastCustom_ = custom;
  return true;
}

bool QtCommonDialogs::ShowFontDialog(env::FontDescription& font) {
  frmFont dialog(
      font, texts_.FaceNames(), [this](std::uint32_t& color) { return ShowColorDialog(color, lastCustom_); },
      QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  font = dialog.Font();
  return true;
}

}  // namespace vantorium::ui
