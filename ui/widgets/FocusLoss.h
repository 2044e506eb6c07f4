#pragma once

#include <QFocusEvent>

namespace vantorium {

/// Whether the event tells that its user left the control for another one of the window. A menu over it, or another
/// window, is no leaving.
[[nodiscard]] inline bool LeavesControl(const QEvent& event) {
  if (event.type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
}

}  // namespace vantorium
