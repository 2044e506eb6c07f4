#pragma once

#include <QLineEdit>
#include <QWidget>

namespace vantorium::ui {

/// A spinner beside a text box: two small buttons that step the number in the box by 1 within a range. The arrow keys
/// in the box do the same. A text that is not a number steps to the range's minimum.
class UpDown : public QWidget {
  Q_OBJECT

 public:
  explicit UpDown(QWidget* parent = nullptr);

  /// `box` is not owned and must outlive this object.
  void Attach(QLineEdit& box, int minimum, int maximum);

 signals:
  /// Carries the number that the box should show.
  void Stepped(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Step(int by);

  QLineEdit* box_ = nullptr;
  int minimum_ = 0;
  int maximum_ = 0;
};

}  // namespace vantorium::ui
