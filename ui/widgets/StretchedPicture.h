#pragma once

#include <QFrame>
#include <QImage>

namespace vantorium::ui {

/// A framed picture that can be clicked, stretched to fill its box. The space bar counts as a click.
class StretchedPicture : public QFrame {
  Q_OBJECT

 public:
  explicit StretchedPicture(QWidget* parent = nullptr);

  /// A null picture clears the box.
  void Show(const QImage& picture);
  [[nodiscard]] const QImage& Picture() const { return picture_; }

 signals:
  void Clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace vantorium::ui
