#pragma once

#include "ui/files/PreviewLoader.h"

#include <QFrame>
#include <QPixmap>

namespace vantorium::ui {

/// A picture fitted into a frame, sharp at every scale of the screen. A requested picture replaces the previous one
/// once it is decoded.
class FittedPicture : public QFrame {
  Q_OBJECT

 public:
  explicit FittedPicture(QWidget* parent = nullptr);

  /// `file` is native; nullopt if it is not there.
  void Load(const std::optional<std::filesystem::path>& file, image::Corrections corrections = {});
  /// Shows nothing.
  void Clear();
  /// The picture that is shown; null if none.
  [[nodiscard]] const QImage& Picture() const { return picture_; }

 signals:
  void Shown();
  /// The file cannot be decoded; nothing is shown.
  void Failed();
  void DoubleClicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Show(const QImage& picture);
  void FitPicture();

  PreviewLoader loader_;
  QImage picture_;
  QPixmap fitted_;  // the picture in the device pixels that it is drawn with
};

}  // namespace vantorium::ui
