#pragma once

#include <QLabel>

namespace vantorium {

/// A label of one line that shows as much of a long text as there is room for, and all of it in its tool tip. Takes no
/// room of its own beyond a line's height.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

}  // namespace vantorium
