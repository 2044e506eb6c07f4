#pragma once

#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <QFrame>
#include <QImage>

namespace vantorium::ui {

/// A framed box of a fixed size that shows a copy of a picture, pixel for pixel on every screen.
class UnscaledPicture : public QFrame {
  Q_OBJECT

 public:
  explicit UnscaledPicture(QWidget* parent = nullptr);

  /// The room inside the frame, in pixels of the screen that the box is on.
  [[nodiscard]] image::PictureSize SizeInPixels() const;

  void Clear();
  /// Shows the picture at the box's top left corner. What it does not cover stays empty.
  void Show(const image::cDIBSection& picture);

  /// Null when the box is clear.
  [[nodiscard]] const QImage& Shown() const { return shown_; }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage shown_;
};

}  // namespace vantorium::ui
