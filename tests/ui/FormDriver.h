#pragma once

#include <QApplication>
#include <QString>
#include <QTest>
#include <QWidget>
#include <functional>
#include <stdexcept>

namespace vantorium::fakes {

/// The control of that class and object name below `form`. Throws std::runtime_error, naming it, when there is none.
template <typename Control>
Control& Find(QWidget& form, const char* name) {
  auto* control = form.findChild<Control*>(name);
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

/// Clicks into the middle of a button, or on the box of a check box, as a mouse does.
void Click(QWidget& control);
void Click(QWidget& form, const char* name);

/// Empties a text control with the keyboard and types `text`.
void Type(QWidget& control, const QString& text);

/// Runs `open`, which shows a modal dialog, and `drive` on that dialog once it is shown. `drive` has to close it; a
/// dialog that is still open behind it is closed as by its title bar, so that no test hangs. Throws std::runtime_error
/// when no dialog came up.
void DriveModal(const std::function<void()>& open, const std::function<void(QWidget&)>& drive);

}  // namespace vantorium::fakes
