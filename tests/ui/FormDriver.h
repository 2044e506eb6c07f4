#pragma once

#include <QApplication>
#include <QString>
#include <QTest>
#include <QWidget>
#include <functional>
#include <stdexcept>

namespace vantorium::fakes {

/// The descendant of `form` with this class and object name. Throws std::runtime_error with the name if there is none.
template <typename Control>
Control& Find(QWidget& form, const char* name) {
  auto* control = form.findChild<Control*>(name);
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

/// Clicks the middle of a control, or the indicator of a check box or radio button, with the mouse.
void Click(QWidget& control);
void Click(QWidget& form, const char* name);

/// Clears a text control with the keyboard and types `text`.
void Type(QWidget& control, const QString& text);

/// Runs `open`, which shows a modal dialog, and `drive` on that dialog once it is shown. `drive` must close the dialog;
/// otherwise the dialog is closed as by its title bar, so that no test hangs. Throws std::runtime_error if no dialog is
/// shown or `drive` fails.
void DriveModal(const std::function<void()>& open, const std::function<void(QWidget&)>& drive);

}  // namespace vantorium::fakes
