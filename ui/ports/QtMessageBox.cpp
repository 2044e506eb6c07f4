#include "ui/ports/QtMessageBox.h"

#include "ui/qt/QtText.h"

#include <QApplication>
#include <QMessageBox>

namespace vantorium::ui {
namespace {

QMessageBox::Icon IconOf(env::BoxKind kind) {
  switch (kind) {
    case env::BoxKind::Critical:
      return QMessageBox::Critical;
    case env::BoxKind::Question:
      return QMessageBox::Question;
    case env::BoxKind::Exclamation:
      return QMessageBox::Warning;
    case env::BoxKind::Information:
      return QMessageBox::Information;
    case env::BoxKind::Plain:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(env::BoxButtons buttons) {
  switch (buttons) {
    case env::BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case env::BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case env::BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Escape gives the harmless answer.
QMessageBox::StandardButton EscapeButtonOf(env::BoxButtons buttons) {
  switch (buttons) {
    case env::BoxButtons::YesNo:
      return QMessageBox::No;
    case env::BoxButtons::YesNoCancel:
      return QMessageBox::Cancel;
    case env::BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// Return never confirms what cannot be undone; saving is harmless.
QMessageBox::StandardButton DefaultButtonOf(env::BoxButtons buttons) {
  switch (buttons) {
    case env::BoxButtons::YesNo:
      return QMessageBox::No;
    case env::BoxButtons::YesNoCancel:
      return QMessageBox::Yes;
    case env::BoxButtons::Ok:
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

env::BoxAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return env::BoxAnswer::Yes;
    case QMessageBox::No:
      return env::BoxAnswer::No;
    case QMessageBox::Cancel:
      return env::BoxAnswer::Cancel;
    default:
      return env::BoxAnswer::Ok;
  }
}

}  // namespace

void QtMessageBox::ShowList(const std::string& title, const std::string& text, const std::string& lines) {
  QMessageBox box(QMessageBox::Information, ToQt(title), LinesToQt(text), QMessageBox::Ok, Owner());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setDetailedText(LinesToQt(lines));
  box.exec();
}

env::BoxAnswer QtMessageBox::Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                                  const std::string& text) {
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

}  // namespace vantorium::ui
