#pragma once

#include <QGroupBox>

namespace vantorium::ui {

/// A group box that shows as much of a long title as fits, and all of it in its tool tip.
class ElidedGroupBox : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;

  /// The title as it is shown.
  [[nodiscard]] QString ShownTitle() const;

 protected:
  void initStyleOption(QStyleOptionGroupBox* option) const override;
  bool event(QEvent* event) override;
};

}  // namespace vantorium::ui
