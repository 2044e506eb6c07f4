#pragma once

#include <QFocusEvent>

namespace vantorium::ui {

/// Returns whether the event means that the user moved from the control to another one in the window. Opening a menu
/// over it, or switching to another window, does not count.
[[nodiscard]] inline bool LeavesControl(const QEvent& event) {
  if (event.type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
}

}  // namespace vantorium::ui
