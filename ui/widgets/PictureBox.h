#pragma once

#include "image/ResamplePlan.h"
#include "image/cDIBSection.h"

#include <QFrame>
#include <QImage>

namespace vantorium {

/// A framed box of a fixed size that shows a picture, pixel for pixel on every screen, and keeps a copy of it.
class PictureBox : public QFrame {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);

  /// What the box has room for inside of its frame, in pixels of the screen that it is on.
  [[nodiscard]] PictureSize SizeInPixels() const;

  void Clear();
  /// Shows the picture with its top left corner in that of the box. What the picture does not reach stays empty.
  void Show(const cDIBSection& picture);

  /// Null when the box is clear.
  [[nodiscard]] const QImage& Shown() const { return shown_; }

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage shown_;
};

}  // namespace vantorium
