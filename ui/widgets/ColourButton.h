#pragma once

#include "core/GalleryProject.h"

#include <QPushButton>

namespace vantorium {

/// A button that shows a colour, and tells it to screen readers as "#RRGGBB".
class ColourButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QColor colour READ ShownColour)

 public:
  explicit ColourButton(QWidget* parent = nullptr);

  void SetColour(Colour colour);
  [[nodiscard]] Colour GetColour() const { return colour_; }
  [[nodiscard]] QColor ShownColour() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour colour_ = 0;
};

}  // namespace vantorium
