#include "ui/ports/QtMessageBox.h"

#include "ui/qt/QtText.h"

#include <QApplication>
#include <QMessageBox>

namespace vantorium {
namespace {

QMessageBox::Icon IconOf(BoxKind kind) {
  switch (kind) {
    case BoxKind::Critical:
      return QMessageBox::Critical;
    case BoxKind::Question:
      return QMessageBox::Question;
    case BoxKind::Exclamation:
      return QMessageBox::Warning;
    case BoxKind::Information:
      return QMessageBox::Information;
    case BoxKind::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Escape gives the harmless answer.
QMessageBox::StandardButton EscapeButtonOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Cancel;
    case BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Return never confirms what cannot be undone; saving is harmless.
QMessageBox::StandardButton DefaultButtonOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes;
    case BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Returns the frontmost window, also while another program is active: the box then waits there.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    const bool isPlain = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    if (isPlain && window->isVisible() && window->isEnabled()) return window;
  }
  return nullptr;
}

BoxAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return BoxAnswer::Yes;
    case QMessageBox::No:
      return BoxAnswer::No;
    case QMessageBox::Cancel:
      return BoxAnswer::Cancel;
    default:
      return BoxAnswer::Ok;
  }
}

}  // namespace

BoxAnswer QtMessageBox::Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) {
  QMessageBox box(Owner());
  box.setObjectName("MessageBox");
  box.setIcon(IconOf(kind));
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(LinesToQt(text));
  box.setStandardButtons(ButtonsOf(buttons));
  box.setDefaultButton(DefaultButtonOf(buttons));
  box.setEscapeButton(EscapeButtonOf(buttons));
  return AnswerOf(box.exec());
}

}  // namespace vantorium
