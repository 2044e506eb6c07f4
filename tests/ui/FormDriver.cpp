#include "tests/ui/FormDriver.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTimer>

namespace vantorium::fakes {

void Click(QWidget& control) {
  QPoint at = control.rect().center();
  if (qobject_cast<QCheckBox*>(&control) != nullptr || qobject_cast<QRadioButton*>(&control) != nullptr) {
    at.setX(8);  // on the indicator: the control may be wider than its text
  }
  QTest::mouseClick(&control, Qt::LeftButton, {}, at);
}

void Click(QWidget& form, const char* name) {
  Click(Find<QWidget>(form, name));
}

void Type(QWidget& control, const QString& text) {
  control.setFocus();
  QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&control, Qt::Key_Delete);
  QTest::keyClicks(&control, text);
}

void DriveModal(const std::function<void()>& open, const std::function<void(QWidget&)>& drive) {
  bool driven = false;
  int patience = 200;  // in ticks of the timer
  std::string failure;
  QTimer timer;
  timer.setInterval(5);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || driven) return;
    if (!dialog->isActiveWindow() && --patience > 0) return;  // the focus is set when the window is activated
    driven = true;
    timer.stop();
    try {
      drive(*dialog);
    } catch (const std::exception& exception) {
      failure = exception.what();
    }
    if (dialog == QApplication::activeModalWidget()) dialog->close();
  });
  timer.start();
  open();
  if (!failure.empty()) throw std::runtime_error(failure);
  if (!driven) throw std::runtime_error("no modal dialog came up");
}

}  // namespace vantorium::fakes
