#pragma once

#include "ui/qt/QtText.h"

#include <QLineEdit>

namespace vantorium::ui {

/// Shows a text in a line edit. If the line already shows it, does nothing, so that its cursor and undo history stay.
inline void ShowText(QLineEdit& control, std::string_view text) {
  const QString shown = ToQt(text);
  if (control.text() != shown) control.setText(shown);
}

}  // namespace vantorium::ui
