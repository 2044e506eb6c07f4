#pragma once

#include "ui/qt/QtText.h"

#include <QLineEdit>

namespace vantorium {

/// Shows a text in a line. One that says the same already is left alone, with its cursor and its undo.
inline void ShowText(QLineEdit& control, std::string_view text) {
  const QString shown = ToQt(text);
  if (control.text() != shown) control.setText(shown);
}

}  // namespace vantorium
