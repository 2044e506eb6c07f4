#pragma once

#include <QWidget>
#include <algorithm>
#include <initializer_list>

namespace vantorium::ui {

/// Makes the controls as wide as the widest of them, so that what stands beside them lines up across groups.
inline void AlignWidths(std::initializer_list<QWidget*> controls) {
  int width = 0;
  for (const QWidget* control : controls) width = std::max(width, control->sizeHint().width());
  for (QWidget* control : controls) control->setMinimumWidth(width);
}

}  // namespace vantorium::ui
