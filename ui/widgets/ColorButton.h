#pragma once

#include "core/GalleryProject.h"

#include <QPushButton>

namespace vantorium::ui {

/// A button that shows a color and reports it to screen readers as "#RRGGBB".
class ColorButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QColor color READ ShownColor)

 public:
  explicit ColorButton(QWidget* parent = nullptr);

  void SetColor(core::Color color);
  [[nodiscard]] core::Color GetColor() const { return color_; }
  [[nodiscard]] QColor ShownColor() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  core::Color color_ = 0;
};

}  // namespace vantorium::ui
