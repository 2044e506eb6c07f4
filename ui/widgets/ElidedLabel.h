#pragma once

#include <QLabel>

namespace vantorium::ui {

/// A one-line label that shows as much of a long text as fits, and all of it in its tool tip. Needs no space except a
/// line's height.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

}  // namespace vantorium::ui
